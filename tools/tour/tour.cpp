#include "tour/tour.h"

#include "plain_file.h"
#include "platform/forms/look_style.h"
#include "tour/portraits.h"
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <cstdio>

namespace zv::tour {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize WindowSize(1100, 760);

/// Pictures as a collector has them: in the formats that the file dialog offers.
void drawPictures(const QTemporaryDir& folder) {
    portrait(QColor(0xCF, 0xBD, 0x9A), Hair::Short, false).save(folder.filePath(u"beethoven.bmp"_s));
    portrait(QColor(0x8F, 0xA8, 0xB8), Hair::Wig, true).save(folder.filePath(u"bach.jpg"_s), nullptr, 92);
    portrait(QColor(0xB8, 0x9A, 0xA8), Hair::Bun, true).save(folder.filePath(u"schumann.jpg"_s), nullptr, 92);
    portrait(QColor(0x9A, 0xB0, 0x94), Hair::Veil, false).save(folder.filePath(u"bingen.bmp"_s));
    portrait(QColor(0xC8, 0xAE, 0x86), Hair::Wig, false).save(folder.filePath(u"haydn.jpg"_s), nullptr, 92);
    portrait(QColor(0x9A, 0xA6, 0xB8), Hair::Short, false).save(folder.filePath(u"conductor.jpg"_s), nullptr, 92);
    portrait(QColor(0xA8, 0x8F, 0x9A), Hair::Bun, true).save(folder.filePath(u"soprano.jpg"_s), nullptr, 92);
    cover(QColor(0x2C, 0x4A, 0x3C), QColor(0xD9, 0xCD, 0xAA), QColor(0xD9, 0xCD, 0xAA))
        .save(folder.filePath(u"score.bmp"_s));
    cover(QColor(0xE2, 0xB8, 0x3C), QColor(0x22, 0x2C, 0x58), QColor(0x2A, 0x22, 0x1C))
        .save(folder.filePath(u"cover.bmp"_s));
    stage(QColor(0x22, 0x2C, 0x58)).save(folder.filePath(u"vienna.jpg"_s), nullptr, 92);
    stage(QColor(0x3F, 0x54, 0x4A)).save(folder.filePath(u"berlin.bmp"_s));
}

} // namespace

Tour::Tour(QString out)
    : boxes([this](const QString& words) { fail(words); }), files([this](const QString& words) { fail(words); }),
      out_(std::move(out)) {
    setFatalErrorHandler(
        [this](const RuntimeError& error) { fail(u"Run-time error %1: "_s.arg(error.number()) + error.text()); });
    if (!QDir().mkpath(out_)) fail(out_ + u" can't be made."_s);
    if (!scratch_.isValid()) fail(scratch_.errorString());
    drawPictures(scratch_);
    jet::DBEngine(store::tableDefs()).CreateDatabase(catalogue());
}

Tour::~Tour() { setFatalErrorHandler({}); }

bool Tour::run(const std::vector<Step>& steps) {
    int number = 0;
    for (const Step& step : steps) {
        step_ = u"%1-"_s.arg(++number, 2, 10, QChar(u'0')) + QString::fromLatin1(step.name);
        const int before = failures_;
        photographed_ = false;
        try {
            step.run(*this);
            boxes.checkAllShown();
            if (!photographed_) photograph();
        } catch (const std::exception& error) {
            fail(u"The step broke off: "_s + QString::fromUtf8(error.what()));
        }
        std::printf("%-28s %s\n", qPrintable(step_), failures_ == before ? "as it should be" : "WRONG");
        std::fflush(stdout);
    }
    hands_.reset();
    program_.reset();
    return failures_ == 0;
}

void Tour::start() {
    hands_.reset();
    program_ = std::make_unique<app::Program>(boxes, files, printers);
    hands_ = std::make_unique<driver::Driver>(*program_, [this](const QString& words) { fail(words); });
    forms::LookStyle::install(program_->scale);
    window().resize(WindowSize);
    require(window().Load(scratch_.path()), u"The program does not start."_s);
    window().show();
    QApplication::processEvents();
}

void Tour::close(int answer) {
    boxes.expect(u"COMPACT the Database?\r\rRecommended."_s, box::YesNo, answer);
    window().close();
}

void Tour::fail(const QString& words) {
    ++failures_;
    std::fprintf(stderr, "%s: %s\n", qPrintable(step_), qPrintable(words));
}

void Tour::same(const QString& what, const QString& expected, const QString& seen) {
    if (expected == seen) return;
    const auto visible = [](QString text) { return text.replace(u'\r', u"\\r"_s); };
    fail(what + u"\n  expected: "_s + visible(expected) + u"\n  seen:     "_s + visible(seen));
}

QStringList Tour::stored(const QString& table, const QString& columns) {
    return plain::stored(catalogue(), table, columns);
}

bool Tour::pdfHolds(const QString& pdf, const QStringList& words) {
    const QString reader = QStandardPaths::findExecutable(u"pdftotext"_s);
    if (reader.isEmpty()) return true;
    QProcess process;
    process.start(reader, {u"-raw"_s, u"-enc"_s, u"UTF-8"_s, pdf, u"-"_s});
    process.waitForFinished();
    const QString text = QString::fromUtf8(process.readAllStandardOutput()).simplified();
    qsizetype from = 0;
    for (const QString& word : words) {
        from = text.indexOf(word.simplified(), from);
        if (from < 0) {
            fail(pdf + u" does not hold, at its place: "_s + word + u"\n  seen:     "_s + text);
            return false;
        }
        from += word.simplified().size();
    }
    return true;
}

void Tour::photograph(const QString& name) {
    photographed_ = true;
    QApplication::processEvents();
    save(window().grab(), name.isEmpty() ? step_ : name);
}

void Tour::photograph(const QPixmap& box) {
    photographed_ = true;
    QPixmap shown = window().grab();
    const QRect at(QPoint((shown.width() - box.width()) / 2, (shown.height() - box.height()) / 2), box.size());
    QPainter painter(&shown);
    painter.fillRect(at.adjusted(-1, -1, 1, 1), Qt::black);
    painter.drawPixmap(at, box);
    painter.end();
    save(shown, step_);
}

void Tour::save(const QPixmap& shown, const QString& path) {
    const QString file = out(path + u".png"_s);
    QDir().mkpath(QFileInfo(file).path());
    require(shown.save(file), file + u" can't be written."_s);
}

} // namespace zv::tour
