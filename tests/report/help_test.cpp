// The pages of the help: their chains, the page that is remembered, their words; and the screen about the program.
#include "report/help_page.h"
#include "support/desk.h"
#include <QTextEdit>

namespace zv::test {
namespace {

using namespace Qt::StringLiterals;

struct Page {
    int number;
    const char* form;
    const char* text;
    const char* caption; ///< of the label with the tip "Página"
    char last;           ///< letter of the last point
};
const Page Pages[] = {
    {58, "FormAyudaGeneral", "TxtAyudaGeneral", "1 - 1", 'O'}, {59, "FormAyudaAnadir1", "TxtAyudaAN1", "1 - 3", 'J'},
    {60, "FormAyudaAnadir2", "TxtAyudaAN2", "", 'G'},          {61, "FormAyudaAnadir3", "TxtAyudaAN3", "", 'L'},
    {62, "FormAyudaSeleccionar", "TxtAyudaSE", "1 - 1", 'U'},  {63, "FormAyudaMostrar1", "TxtAyudaME1", "1 - 3", 'G'},
    {64, "FormAyudaMostrar2", "TxtAyudaME2", "", 'G'},         {65, "FormAyudaMostrar3", "TxtAyudaME3", "", 'F'},
    {66, "FormAyudaListar", "TxtAyudaLI1", "", 'L'},           {67, "FormAyudaListar2", "TxtAyudaLI2", "", 'I'},
};

/// Words that stand as they are, blanks included. Several of them lie across lines of their file.
const std::pair<int, const char*> Statements[] = {
    {58, "\"Zarvelia ®\" is a Cataloguing Computer Program, designed exclusively for the World of Classical Music."},
    {58,
     "\"Station\", \"http://www.\", distributed between \"Records I\" and \"Records II\" in a total of 143 fields."},
    {58, "whose fields are formed by records from the other 6 components of \"Records I\"."},
    {58, "VERY IMPORTANT: Any data being introduced will be stored at DataZV.mdb."},
    {60, "The 3 different formations  are catalogued in the same screen, but you should fill in for each new record "
         "only one field of the 3. (Orchestra or Ensemble or Choir)."},
    {61, "The number of performers is not a field, it is just informative."},
    {62, "The two first filters selection result will apply always to the third filter, and to the result will apply "
         "the fourth, and so on."},
    {65, "(10 Orchestras, 10 Conductors and 100 Performers maximum)"},
    {66, "The zoom allows you to see till 23 \"Movements\" from a \"Work\" o 23 lines of \"Notes\"."},
    {67, "The printed  standard page will show:"},
};

class HelpTest : public Desk {
  protected:
    shell::FormSolapas& strip() { return program->window.Solapas(); }
    void show(int number) {
        strip().OcultarFormulario();
        strip().MostrarFormulario(number);
    }
    bool has(const QString& button) { return hands->screen()->findChild<QPushButton*>(button) != nullptr; }
    QTextEdit& text(const Page& page) { return hands->get<QTextEdit>(QString::fromLatin1(page.text)); }
};

TEST_F(HelpTest, everyPageSaysItsPoints) {
    start();
    for (const Page& page : Pages) {
        show(page.number);
        hands->screen(QString::fromLatin1(page.form));
        QTextEdit& words = text(page);
        EXPECT_TRUE(words.isReadOnly());
        EXPECT_FALSE(words.document()->firstBlock().text().isEmpty());
        QString letters, expected;
        for (QTextBlock block = words.document()->begin(); block.isValid(); block = block.next())
            if (block.text().size() > 2 && block.text()[1] == u'\t') letters += block.text()[0];
        for (char letter = 'A'; letter <= page.last; ++letter) expected += QChar::fromLatin1(letter);
        EXPECT_EQ(letters, expected) << page.form;
        for (const auto& [number, statement] : Statements)
            if (number == page.number) {
                EXPECT_TRUE(words.toPlainText().contains(QString::fromUtf8(statement))) << statement;
            }
        QString caption;
        for (const QLabel* label : hands->screen()->findChildren<QLabel*>())
            if (label->toolTip() == u"Página"_s) caption += label->text();
        EXPECT_EQ(caption, QString::fromLatin1(page.caption)) << page.form;
    }
}

TEST_F(HelpTest, everyLetterOnADrawingIsAPointOfItsPage) {
    ASSERT_EQ(report::helpPages().size(), std::size(Pages));
    for (std::size_t i = 0; i < std::size(Pages); ++i)
        for (const report::Picturing* drawing : {&report::helpPages()[i].upper, &report::helpPages()[i].lower})
            for (const report::Badge& badge : drawing->badges)
                EXPECT_TRUE(badge.letter >= u'A' && badge.letter <= Pages[i].last)
                    << Pages[i].form << ' ' << static_cast<char>(badge.letter);
}

// No word is lost beside the memo, and what hangs before the points keeps its place, whatever the scale.
TEST_F(HelpTest, theWordsKeepToTheMemoAtEveryScale) {
    for (const QSize size : {QSize(712, 626), QSize(1920, 1080), QSize(3840, 2160)}) {
        start(size);
        show(58);
        QTextEdit& words = text(Pages[0]);
        EXPECT_LE(words.document()->idealWidth(), words.viewport()->width()) << size.width();
        const QTextBlock point = words.document()->firstBlock().next();
        const QTextLayout& lines = *point.layout();
        ASSERT_GT(lines.lineCount(), 1);
        EXPECT_NEAR(lines.lineAt(0).cursorToX(2), lines.lineAt(1).cursorToX(lines.lineAt(1).textStart()), 1);
        EXPECT_EQ(words.font().pixelSize(), program->scale.px(forms::type::M));
    }
}

TEST_F(HelpTest, theButtonsWalkTheChains) {
    start();
    for (const std::vector<int>& chain : {std::vector{59, 60, 61}, {63, 64, 65}, {66, 67}}) {
        hands->go(chain.front());
        for (std::size_t i = 0; i < chain.size(); ++i) {
            EXPECT_EQ(strip().VentanaMostrandose, chain[i]);
            EXPECT_EQ(has(u"BtnAnterior"_s), i > 0) << chain[i];
            EXPECT_EQ(has(u"BtnSiguiente"_s), i + 1 < chain.size()) << chain[i];
            if (i + 1 < chain.size()) hands->click(u"BtnSiguiente"_s);
        }
        for (std::size_t i = chain.size(); i-- > 1;) hands->click(u"BtnAnterior"_s);
        EXPECT_EQ(strip().VentanaMostrandose, chain.front());
    }
    for (const int alone : {58, 62}) {
        hands->go(alone);
        EXPECT_FALSE(has(u"BtnAnterior"_s) || has(u"BtnSiguiente"_s)) << alone;
    }
}

TEST_F(HelpTest, aChainOpensWhereItWasLeft) {
    start();
    hands->go(59);
    hands->click(u"BtnSiguiente"_s);
    hands->go(66);
    hands->click(u"BtnSiguiente"_s);
    hands->go(63);
    hands->go(1);
    hands->go(60);
    hands->screen(u"FormAyudaAnadir2"_s);
    hands->go(67);
    hands->screen(u"FormAyudaListar2"_s);
    hands->go(63);
    hands->screen(u"FormAyudaMostrar1"_s);
    EXPECT_EQ(strip().AyudaAnadir, 60);
    EXPECT_EQ(strip().AyudaMostrar, 63);
    EXPECT_EQ(strip().AyudaListar, 67);
}

TEST_F(HelpTest, aboutNamesTheProgramAndItsMaker) {
    start();
    hands->go(68);
    hands->screen(u"FormAcercaDe"_s);
    QStringList lines;
    for (const QLabel* label : hands->screen()->findChildren<QLabel*>())
        if (!label->text().isEmpty()) lines += label->text();
    for (const QString& line : {u"Zarvelia"_s, u"English Version"_s, u"Brumatec"_s, u"info@brumatec.example"_s})
        EXPECT_TRUE(lines.contains(line)) << line.toStdString();
    EXPECT_FALSE(hands->get<forms::Picture>(u"ImagenLogoOrquesta"_s).picture().isEmpty());
}

} // namespace
} // namespace zv::test
