#include "platform/forms/qt_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>

namespace zv::forms {

using namespace Qt::StringLiterals;

namespace {

/// A box of Yes and No has no way out but an answer: Escape and the close button do nothing.
class AnswerBox : public QMessageBox {
  public:
    AnswerBox(QWidget* parent, bool answerNeeded) : QMessageBox(parent), answerNeeded_(answerNeeded) {}

  protected:
    void closeEvent(QCloseEvent* event) override {
        if (answerNeeded_)
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (answerNeeded_ && event->key() == Qt::Key_Escape)
            event->ignore();
        else
            QMessageBox::keyPressEvent(event);
    }

  private:
    bool answerNeeded_;
};

QMessageBox::StandardButtons buttonsOf(int style) {
    switch (style & 15) {
    case 1: return QMessageBox::Ok | QMessageBox::Cancel;
    case 4: return QMessageBox::Yes | QMessageBox::No;
    default: return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(int style) {
    switch (style & 112) {
    case 16: return QMessageBox::Critical;
    case 32: return QMessageBox::Question;
    case 48: return QMessageBox::Warning;
    default: return QMessageBox::Information;
    }
}

int answerOf(int button) {
    switch (button) {
    case QMessageBox::Cancel: return box::Cancel;
    case QMessageBox::Yes: return box::Yes;
    case QMessageBox::No: return box::No;
    default: return box::Ok;
    }
}

QWidget* parentWindow() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->isWindow() && !window->parentWidget()) return window;
    return nullptr;
}

/// "words|*.a;*.b" pairs as the toolkit's name filters.
QStringList nameFilters(const QString& filter) {
    QStringList filters;
    const QStringList parts = filter.split(u'|');
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        const QString words = parts[i].section(u" ("_s, 0, 0);
        QString patterns = parts[i + 1];
        patterns.replace(u';', u' ').replace(u"*.*"_s, u"*"_s);
        filters += words + u" ("_s + patterns + u')';
    }
    return filters;
}

} // namespace

int QtMessageBoxes::MsgBox(const QString& text, int style) {
    AnswerBox shown(parentWindow(), (style & 15) == 4);
    shown.setWindowTitle(u"Zarvelia"_s);
    shown.setTextFormat(Qt::PlainText);
    shown.setText(QString(text).replace(u'\r', u'\n'));
    shown.setIcon(iconOf(style));
    const auto buttons = buttonsOf(style);
    shown.setStandardButtons(buttons);
    // The first button is the default one.
    shown.setDefaultButton(buttons & QMessageBox::Yes ? QMessageBox::Yes : QMessageBox::Ok);
    return answerOf(shown.exec());
}

QString QtFileDialogs::openFile(const QString& title, const QString& filter, const QString& fileName) {
    QFileDialog dialog(parentWindow(), title);
    dialog.setObjectName(u"DialogoImagen"_s);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(nameFilters(filter));
    const QFileInfo preset(fileName);
    if (!fileName.isEmpty()) {
        dialog.setDirectory(preset.dir());
        dialog.selectFile(preset.fileName());
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().constFirst();
}

} // namespace zv::forms
