// The printer dialog with its paper, the preview, and the window that tells how far a print is.
#include "platform/printing/preview_dialog.h"
#include "platform/printing/printer_dialog.h"
#include "support/error_of.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zv;
using namespace zv::printing;

namespace {

using test::errorOf;

/// Does something with each dialog that comes up, in turn; a preview is waited for until it has made its pages.
class Answers : public QObject {
  public:
    using Answer = std::function<void(QDialog&)>;

    Answers() { lookSoon(); }
    ~Answers() override { EXPECT_TRUE(answers_.empty()) << answers_.front().first.toStdString() << " has not come up"; }

    void add(const QString& dialog, Answer answer) { answers_.emplace_back(dialog, std::move(answer)); }
    /// The preview is not waited for.
    bool whileMaking = false;

  private:
    // A timer of its own each time: an answer may last as long as the dialogs that it opens.
    void lookSoon() {
        QTimer::singleShot(5, this, [this] { look(); });
    }
    void look() {
        lookSoon();
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || answers_.empty() || dialog->objectName() != answers_.front().first) return;
        auto* bar = dialog->findChild<QProgressBar*>(u"ProgressBar"_s);
        if (!whileMaking && bar && bar->isVisible()) return;
        const Answer answer = std::move(answers_.front().second);
        answers_.erase(answers_.begin());
        answer(*dialog);
    }

    std::vector<std::pair<QString, Answer>> answers_;
};

const QString TheDialog = u"DialogoImpresora"_s, ThePreview = u"DialogoVistaPrevia"_s;

void click(const QDialog& dialog, const QString& name) {
    auto* button = dialog.findChild<QAbstractButton*>(name);
    ASSERT_NE(button, nullptr) << name.toStdString();
    ASSERT_TRUE(button->isVisible()) << name.toStdString();
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, button->height() / 2));
}

void escape(QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }

/// Chooses a row as a user does with the keys.
void choose(const QDialog& dialog, const QString& combo, const QString& row) {
    auto* box = dialog.findChild<QComboBox*>(combo);
    ASSERT_NE(box, nullptr);
    ASSERT_GE(box->findText(row), 0) << row.toStdString();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    while (box->currentText() != row) QTest::keyClick(box, Qt::Key_Down);
}

/// Blocks of words in two colours and sizes, with pictures, on some pages.
void print(Printer& printer, const Progress& progress) {
    QImage opaque(400, 300, QImage::Format_RGB32), pierced(60, 60, QImage::Format_ARGB32);
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x) opaque.setPixel(x, y, qRgb(x / 2, y / 2, 120));
    pierced.fill(QColor(200, 0, 0, 90));
    constexpr int Blocks = 40;
    for (int block = 0; block < Blocks; ++block) {
        if (printer.CurrentY + 2500 > printer.ScaleHeight()) printer.NewPage();
        const double top = printer.CurrentY;
        printer.PaintPicture(block % 2 ? opaque : pierced, 904, top, 1191, 893);
        printer.setForeColor(block % 3 ? 0 : 8388608);
        printer.setFontBold(block % 4 == 0);
        printer.setFontSize(block % 4 == 0 ? 14 : 9);
        printer.CurrentX = 2300;
        printer.PrintLine(u"%1- / Dvořák / Прокофьев / to the right "_s.arg(block).repeated(1 + block % 3));
        printer.CurrentY = top + 1400;
        progress(block + 1, Blocks);
    }
}

const Document pages = print;

constexpr int Dpi = 100;

QList<QImage> drawn(const PreviewPages& of) {
    QList<QImage> images;
    const QSizeF size = of.layout().fullRect(QPageLayout::Inch).size() * Dpi;
    for (int page = 0; page < of.count(); ++page) {
        QImage image(size.toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        of.draw(page, painter, QRectF(QPointF(), size));
        images += image;
    }
    return images;
}

QList<QImage> drawn(const QString& pdf, const QTemporaryDir& folder) {
    const int ended = QProcess::execute(u"pdftoppm"_s,
                                        {u"-r"_s, QString::number(Dpi), u"-png"_s, pdf, folder.filePath(u"printed"_s)});
    EXPECT_EQ(ended, 0);
    QList<QImage> images;
    for (const QString& file : QDir(folder.path()).entryList({u"printed*.png"_s}, QDir::Files, QDir::Name))
        images += QImage(folder.filePath(file)).convertToFormat(QImage::Format_RGB32);
    return images;
}

/// Number of places, of about a millimetre, that are dark on the page and have no ink near them on the other. Letters
/// are drawn by two programs, one darker than the other.
int strangers(const QImage& page, const QImage& other) {
    constexpr int Cell = 4, Dark = 200, Inked = 250;
    const QSize cells = page.size() / Cell;
    const auto coarse = [cells](const QImage& of) {
        return of.scaled(cells, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage ours = coarse(page), theirs = coarse(other);
    const auto near = [&](int x, int y) {
        for (int v = std::max(0, y - 1); v <= std::min(cells.height() - 1, y + 1); ++v)
            for (int u = std::max(0, x - 1); u <= std::min(cells.width() - 1, x + 1); ++u)
                if (qGray(theirs.pixel(u, v)) < Inked) return true;
        return false;
    };
    int count = 0;
    for (int y = 0; y < cells.height(); ++y)
        for (int x = 0; x < cells.width(); ++x) count += qGray(ours.pixel(x, y)) < Dark && !near(x, y);
    return count;
}

struct Paper {
    const char* size;
    bool landscape;
};

class PaperChoice : public ::testing::TestWithParam<Paper> {};

INSTANTIATE_TEST_SUITE_P(Preview, PaperChoice,
                         ::testing::Values(Paper{"A4", false}, Paper{"A4", true}, Paper{"A5", false},
                                           Paper{"Letter", true}),
                         [](const auto& paper) {
                             return std::string(paper.param.size) + (paper.param.landscape ? "Landscape" : "Portrait");
                         });

TEST_P(PaperChoice, IsThatOfPreviewAndPrintAlike) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"list.pdf"_s), size = QString::fromLatin1(GetParam().size);
    const bool landscape = GetParam().landscape;
    QWidget parent;
    QtPrinterDialogs dialogs(&parent);
    QList<QImage> seen;
    const auto choices = [&](const QDialog& dialog) {
        return dialog.findChild<QComboBox*>(u"ComboPapel"_s)->currentText().startsWith(size) &&
               dialog.findChild<QRadioButton*>(u"OpcHorizontal"_s)->isChecked() == landscape;
    };
    {
        Answers answers;
        answers.add(TheDialog, [&](QDialog& dialog) {
            auto* sizes = dialog.findChild<QComboBox*>(u"ComboPapel"_s);
            choose(dialog, u"ComboPapel"_s, sizes->itemText(sizes->findText(size, Qt::MatchStartsWith)));
            if (landscape) click(dialog, u"OpcHorizontal"_s);
            dialog.findChild<QLineEdit*>(u"filename"_s)->setText(path);
            click(dialog, u"BtnVistaPrevia"_s);
        });
        answers.add(ThePreview, [&](QDialog& dialog) {
            seen = drawn(static_cast<PreviewDialog&>(dialog).pages());
            EXPECT_EQ(dialog.findChild<QLabel*>(u"LabPaginas"_s)->text(), u"of %1"_s.arg(seen.size()));
            click(dialog, u"BtnImprimir"_s);
        });
        const auto printer = dialogs.ShowPrinter(pages);
        EXPECT_FALSE(QFile::exists(path)) << "the preview prints nothing";
        pages(*printer, [](int, int) {});
        printer->EndDoc();
    }
    const QList<QImage> printed = drawn(path, folder);
    ASSERT_GE(printed.size(), 3);
    ASSERT_EQ(seen.size(), printed.size());
    EXPECT_EQ(printed[0].width() > printed[0].height(), landscape);
    for (int page = 0; page < printed.size(); ++page) {
        EXPECT_LE((printed[page].size() - seen[page].size()).width(), 1);
        EXPECT_LE((printed[page].size() - seen[page].size()).height(), 1);
        EXPECT_EQ(strangers(seen[page], printed[page]), 0) << "page " << page;
        EXPECT_EQ(strangers(printed[page], seen[page]), 0) << "page " << page;
        EXPECT_GT(strangers(seen[page], printed[(page + 1) % printed.size()]), 10) << "pages are told apart";
    }
    Answers answers;
    answers.add(TheDialog, [&](QDialog& dialog) {
        EXPECT_TRUE(choices(dialog)) << "the choice stays";
        escape(dialog);
    });
    EXPECT_EQ(errorOf([&] { dialogs.ShowPrinter(pages); }), 32755);
}

/// Names of what gains the focus by the tab key, from what has it.
QStringList tabs(QDialog& dialog) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QStringList names;
    QWidget* const first = dialog.focusWidget();
    do {
        const auto* button = qobject_cast<QPushButton*>(dialog.focusWidget());
        const QString name = dialog.focusWidget()->objectName();
        names += name.isEmpty() && button ? button->text().remove(u'&') : name;
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    } while (dialog.focusWidget() != first && names.size() < 20);
    return names;
}

TEST(PrinterDialog, IsWalkedInReadingOrder) {
    QWidget parent;
    QtPrinterDialogs dialogs(&parent);
    Answers answers;
    answers.add(TheDialog, [](QDialog& dialog) {
        dialog.findChild<QComboBox*>(u"printers"_s)->setFocus();
        EXPECT_EQ(tabs(dialog), QStringList({u"printers"_s, u"filename"_s, u"fileBrowser"_s, u"ComboPapel"_s,
                                             u"OpcVertical"_s, u"Print"_s, u"BtnVistaPrevia"_s, u"Cancel"_s}));
        click(dialog, u"BtnVistaPrevia"_s);
        QTimer::singleShot(0, &dialog, &QDialog::reject);
    });
    answers.add(ThePreview, [](QDialog& dialog) {
        EXPECT_EQ(tabs(dialog), QStringList({u"PageView"_s, u"BtnImprimir"_s, u"BtnRegresar"_s, u"TxtPagina"_s,
                                             u"BtnSiguiente"_s, u"ComboZoom"_s}));
        escape(dialog);
    });
    EXPECT_EQ(errorOf([&] { dialogs.ShowPrinter(pages); }), 32755);
}

TEST(Preview, GoesFromPageToPage) {
    QWidget parent;
    QtPrinterDialogs dialogs(&parent);
    Answers answers;
    answers.add(TheDialog, [](QDialog& dialog) { click(dialog, u"BtnVistaPrevia"_s); });
    answers.add(ThePreview, [](QDialog& dialog) {
        auto* view = dialog.findChild<QWidget*>(u"PageView"_s);
        auto* number = dialog.findChild<QSpinBox*>(u"TxtPagina"_s);
        const int count = number->maximum();
        EXPECT_GE(count, 4);
        const auto is = [&](int page) {
            EXPECT_EQ(number->value(), page);
            EXPECT_EQ(view->accessibleName(), u"Page %1"_s.arg(page));
            EXPECT_EQ(dialog.findChild<QPushButton*>(u"BtnAnterior"_s)->isEnabled(), page > 1);
            EXPECT_EQ(dialog.findChild<QPushButton*>(u"BtnSiguiente"_s)->isEnabled(), page < count);
        };
        EXPECT_TRUE(view->hasFocus());
        EXPECT_TRUE(view->accessibleDescription().startsWith(u"0- / Dvořák"_s)) << "its words can be read aloud";
        is(1);
        click(dialog, u"BtnSiguiente"_s);
        is(2);
        QTest::keyClick(view, Qt::Key_PageDown);
        is(3);
        QTest::keyClick(view, Qt::Key_PageUp);
        is(2);
        QTest::keyClick(view, Qt::Key_End);
        is(count);
        QTest::keyClick(view, Qt::Key_PageDown);
        is(count);
        click(dialog, u"BtnAnterior"_s);
        is(count - 1);
        // Larger than the view a page is scrolled through first.
        choose(dialog, u"ComboZoom"_s, u"200 %"_s);
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Home);
        QTest::keyClick(view, Qt::Key_PageDown);
        is(1);
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, u"3"_s);
        QTest::keyClick(number, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << "Enter in the number prints nothing";
        is(3);
        escape(dialog);
    });
    answers.add(TheDialog, [](QDialog& dialog) { escape(dialog); });
    EXPECT_EQ(errorOf([&] { dialogs.ShowPrinter(pages); }), 32755);
}

TEST(Preview, CanBeLeftOrPrintedWhileItsPagesAreMade) {
    const QTemporaryDir folder;
    QWidget parent;
    QtPrinterDialogs dialogs(&parent);
    int made = 0;
    const Document endless = [&](Printer& printer, const Progress& progress) {
        for (made = 1; made < 100'000'000; ++made) {
            printer.CurrentY = 0;
            printer.Print(u"line"_s);
            if (made % 10 == 0) printer.NewPage();
            progress(made, 100'000'000);
        }
    };
    Answers answers;
    answers.whileMaking = true;
    answers.add(TheDialog, [&](QDialog& dialog) {
        dialog.findChild<QLineEdit*>(u"filename"_s)->setText(folder.filePath(u"list.pdf"_s));
        click(dialog, u"BtnVistaPrevia"_s);
        EXPECT_TRUE(dialog.isVisible()) << "back at the dialog";
        EXPECT_LT(made, 100'000'000);
        QTimer::singleShot(0, &dialog, [&dialog] { click(dialog, u"BtnVistaPrevia"_s); });
    });
    answers.add(ThePreview, [](QDialog& dialog) { escape(dialog); });
    answers.add(ThePreview, [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    EXPECT_NE(dialogs.ShowPrinter(endless), nullptr);
    EXPECT_LT(made, 100'000'000);
}

TEST(Preview, TellsTheErrorOfTheDocument) {
    QWidget parent;
    QtPrinterDialogs dialogs(&parent);
    Answers answers;
    answers.add(TheDialog, [](QDialog& dialog) { click(dialog, u"BtnVistaPrevia"_s); });
    const Document broken = [](Printer& printer, const Progress&) {
        printer.Print(u"one"_s);
        throw RuntimeError(3021);
    };
    EXPECT_EQ(errorOf([&] { dialogs.ShowPrinter(broken); }), 3021);
}

TEST(PrinterDialog, SharesThePaperWithTheProperties) {
    const QTemporaryDir folder;
    QWidget parent;
    QtPrinterDialogs dialogs(&parent);
    Answers answers;
    answers.add(TheDialog, [&](QDialog& dialog) {
        auto* properties = dialog.findChild<QPushButton*>(u"properties"_s);
        EXPECT_FALSE(properties->isVisible()) << "a file has no properties but its paper";
        EXPECT_EQ(dialog.findChild<QComboBox*>(u"printers"_s)->currentText(), u"Print to File (PDF)"_s);
        // As they are used with a printer of paper.
        const auto useProperties = [&](const std::function<void(QDialog&)>& how) {
            QTimer::singleShot(0, &dialog, [how] { how(*qobject_cast<QDialog*>(QApplication::activeModalWidget())); });
            properties->click();
        };
        useProperties([](QDialog& shown) {
            auto* sizes = shown.findChild<QComboBox*>(u"pageSizeCombo"_s);
            sizes->setCurrentIndex(sizes->findText(QPageSize::name(QPageSize::Legal)));
            shown.findChild<QRadioButton*>(u"landscape"_s)->click();
            shown.accept();
        });
        auto* size = dialog.findChild<QComboBox*>(u"ComboPapel"_s);
        EXPECT_EQ(size->currentText(), QPageSize::name(QPageSize::Legal));
        EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"OpcHorizontal"_s)->isChecked());
        choose(dialog, u"ComboPapel"_s, QPageSize::name(QPageSize::A3));
        click(dialog, u"OpcVertical"_s);
        useProperties([](QDialog& shown) {
            EXPECT_EQ(shown.findChild<QComboBox*>(u"pageSizeCombo"_s)->currentText(), QPageSize::name(QPageSize::A3));
            EXPECT_TRUE(shown.findChild<QRadioButton*>(u"portrait"_s)->isChecked());
            shown.reject();
        });
        dialog.findChild<QLineEdit*>(u"filename"_s)->setText(folder.filePath(u"list.pdf"_s));
        size->setFocus();
        QTest::keyClick(size, Qt::Key_Return); // the button of default
    });
    const auto printer = dialogs.ShowPrinter(pages);
    EXPECT_NEAR(printer->Width(), 842 * 20, 20) << "A3, upright";
}

TEST(ProgressWindow, KeepsOthersFromInputUntilThePrintEnds) {
    QPushButton under(u"under"_s);
    int clicks = 0;
    QObject::connect(&under, &QPushButton::clicked, [&] { ++clicks; });
    under.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&under));
    QtPrinterDialogs dialogs(&under);
    dialogs.showProgress(1, 1000);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "a short print shows nothing";
    QWidget* window = nullptr;
    for (int done = 2; !window && done < 1000; ++done) {
        QTest::qSleep(10);
        dialogs.showProgress(done, 1000);
        window = QApplication::activeModalWidget();
    }
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->objectName(), u"DialogoProgreso"_s);
    QTest::mouseClick(under.windowHandle(), Qt::LeftButton, {}, QPoint(10, 10));
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(window->close());
    QTest::qSleep(60);
    dialogs.showProgress(999, 1000);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(window->findChild<QLabel*>()->text(), u"Printing: 999 of 1000"_s);
    dialogs.showProgress(0, 1000);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    QTest::mouseClick(under.windowHandle(), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(clicks, 1);
}

} // namespace
