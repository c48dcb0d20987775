#include "support/desk.h"

#include "plain_file.h"
#include "platform/forms/look_style.h"
#include "store/messages.h"
#include <QApplication>
#include <QTest>

namespace zv::test {

using namespace Qt::StringLiterals;

namespace {

void fail(const QString& words) { ADD_FAILURE() << words.toStdString(); }

} // namespace

Desk::Desk() : boxes(fail), files(fail) {
    setFatalErrorHandler([](const RuntimeError& error) {
        ADD_FAILURE() << "Run-time error " << error.number() << ": " << error.text().toStdString();
    });
    jet::DBEngine(store::tableDefs()).CreateDatabase(file());
}

Desk::~Desk() {
    stop();
    boxes.checkAllShown();
}

// The look reads the program's scale.
void Desk::stop() {
    hands.reset();
    if (program) QApplication::setStyle(u"fusion"_s);
    program.reset();
}

void Desk::put(const Rows& rows) {
    SQLite::Database database(file().toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Transaction transaction(database);
    for (const QString& values : rows.values)
        database.exec(
            (u"INSERT INTO "_s + rows.table + u'(' + rows.columns + u") VALUES("_s + values + u')').toStdString());
    transaction.commit();
}

void Desk::start(QSize size) {
    stop();
    program = std::make_unique<app::Program>(boxes, files, printers);
    hands = std::make_unique<driver::Driver>(*program, fail);
    forms::LookStyle::install(program->scale);
    program->window.resize(size);
    ASSERT_TRUE(program->window.Load(folder()));
    program->window.show();
    // Only in the window in front does a box gain the focus.
    program->window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program->window));
    hands->enter();
}

void Desk::close(int answer) {
    boxes.expect(u"COMPACT the Database?\r\rRecommended."_s, box::YesNo, answer);
    program->window.close();
}

QStringList Desk::stored(const QString& table, const QString& columns) { return plain::stored(file(), table, columns); }

QStringList Desk::changesSince(const QString& before) {
    const QStringList old = before.split(u'\n'), now = program->store.memory.dump().split(u'\n');
    QStringList changed;
    for (qsizetype i = 0; i < now.size(); ++i)
        if (old.value(i) != now[i]) changed += now[i];
    return changed;
}

void Desk::save() {
    boxes.expect(store::MensaGrabadoBien, box::Information);
    hands->click(u"BtnGuardar"_s);
}

QString Desk::picture(const QString& name, QSize size, const char* format) {
    const QString path = folder_.filePath(name);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    EXPECT_TRUE(image.save(path, format)) << format;
    return path;
}

QString Desk::focus() { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString(); }

void Desk::sql(const QString& statement) { plain::run(file(), statement); }

} // namespace zv::test
