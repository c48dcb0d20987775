// The pages of the help: their chains, the page that is remembered, their words and drawings; and what the opening
// screen and the screen about the program say of it.
#include "report/help_page.h"
#include "report/mock_ups.h"
#include "support/desk.h"
#include <QTextBlock>
#include <QTextEdit>
#include <QVersionNumber>
#include <map>

namespace zv::test {
namespace {

using namespace Qt::StringLiterals;
namespace mock_ups = report::mock_ups;

struct Page {
    int number;
    const char *form, *text; ///< the ends of their names
    QString caption;         ///< of the label with the tip "Página"
    char16_t last;           ///< letter of the last point
    report::Shapes (*upper)();
    report::Shapes (*lower)();
};

const Page Pages[] = {
    {58, "General", "General", u"1 - 1"_s, u'O', mock_ups::listOfPictures, mock_ups::report},
    {59, "Anadir1", "AN1", u"1 - 3"_s, u'J', mock_ups::addComposerEmpty, mock_ups::addComposerWithPicture},
    {60, "Anadir2", "AN2", {}, u'G', mock_ups::addOrchestra, mock_ups::addWorkWide},
    {61, "Anadir3", "AN3", {}, u'L', mock_ups::addRecording, mock_ups::showConductorWithGroup},
    {62, "Seleccionar", "SE", u"1 - 1"_s, u'U', mock_ups::selectComposer, nullptr},
    {63, "Mostrar1", "ME1", u"1 - 3"_s, u'G', mock_ups::showComposer, mock_ups::showComposerReduced},
    {64, "Mostrar2", "ME2", {}, u'G', mock_ups::modifyComposer, mock_ups::modifyComposerFromRecording},
    {65, "Mostrar3", "ME3", {}, u'F', mock_ups::showPerformerWithGroup, nullptr},
    {66, "Listar", "LI1", {}, u'L', mock_ups::listOfTexts, mock_ups::listOfPictures},
    {67, "Listar2", "LI2", {}, u'I', mock_ups::listOfTexts, mock_ups::printedPage},
};

/// What the pages tell of the program's own words and limits.
const std::multimap<int, QString> Facts = {
    {58, u"in a total of 143 fields."_s},
    {58, u"Ctrl+V (25,000 characters maximum)"_s},
    {58, u"stored at DataZV.mdb."_s},
    {60, u"the number of movements (150 maximum)"_s},
    {62, uR"("Same as", "Contains", "Does not Contain", "Smaller than" y "Bigger than")"_s},
    {62, u"20 maximum"_s},
    {65, u"(10 Orchestras, 10 Conductors and 100 Performers maximum)"_s},
    {66, uR"(to see till 23 "Movements" from a "Work")"_s},
    {66, u"with zoom 20."_s},
};

class HelpTest : public Desk {
  protected:
    shell::FormSolapas& strip() { return program->window.Solapas(); }
    void show(int number) {
        strip().OcultarFormulario();
        strip().MostrarFormulario(number);
    }
    bool has(const QString& button) { return hands->screen()->findChild<QPushButton*>(button) != nullptr; }
    QTextEdit& text(const Page& page) { return hands->get<QTextEdit>(u"TxtAyuda"_s + QLatin1String(page.text)); }
    /// All words of the labels on display, from the top down.
    QString lines() {
        std::vector<QLabel*> labels;
        for (QLabel* label : hands->screen()->findChildren<QLabel*>())
            if (!label->text().isEmpty()) labels.push_back(label);
        std::ranges::sort(labels, {}, [](const QLabel* label) { return label->y(); });
        QStringList texts;
        for (const QLabel* label : labels) texts += label->text();
        return texts.join(u'|');
    }
};

TEST_F(HelpTest, everyPageSaysItsPoints) {
    start();
    for (const Page& page : Pages) {
        SCOPED_TRACE(page.number);
        show(page.number);
        hands->screen(u"FormAyuda"_s + QLatin1String(page.form));
        QTextEdit& words = text(page);
        EXPECT_TRUE(words.isReadOnly());
        QString letters, expected;
        for (QTextBlock block = words.document()->begin(); block.isValid(); block = block.next())
            if (block.text().size() > 2 && block.text()[1] == u'\t') letters += block.text()[0];
        for (char16_t letter = u'A'; letter <= page.last; ++letter) expected += QChar(letter);
        EXPECT_EQ(letters, expected);
        for (auto [fact, end] = Facts.equal_range(page.number); fact != end; ++fact)
            EXPECT_TRUE(words.toPlainText().contains(fact->second)) << fact->second.toStdString();
        QString caption;
        for (const QLabel* label : hands->screen()->findChildren<QLabel*>())
            if (label->toolTip() == u"Página"_s) caption += label->text();
        EXPECT_EQ(caption, page.caption);
    }
}

// Each letter on a drawing is a point of its page; what it stands on lies on the drawing, in the twips of a screen.
TEST_F(HelpTest, everyPageHasItsDrawingsWithLettersOnThem) {
    constexpr QRect Drawing(0, 0, 10320, 7755);
    ASSERT_EQ(report::helpPages().size(), std::size(Pages));
    for (std::size_t i = 0; i < std::size(Pages); ++i) {
        SCOPED_TRACE(Pages[i].number);
        const report::HelpPage& page = report::helpPages()[i];
        EXPECT_TRUE(page.upper.shapes == Pages[i].upper && page.lower.shapes == Pages[i].lower);
        for (const report::Picturing* drawing : {&page.upper, &page.lower})
            for (const report::Badge& badge : drawing->badges) {
                EXPECT_TRUE(badge.letter >= u'A' && badge.letter <= Pages[i].last) << static_cast<char>(badge.letter);
                EXPECT_TRUE(Drawing.contains(badge.x, badge.y)) << static_cast<char>(badge.letter);
            }
    }
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

// The version is that of the release, without its last number.
TEST_F(HelpTest, theProgramAndItsMakerAreNamed) {
    start();
    const QVersionNumber release = QVersionNumber::fromString(QStringLiteral(ZV_VERSION));
    const QString head =
        u"Zarvelia|English Version|Version %1.%2|"_s.arg(release.majorVersion()).arg(release.minorVersion());
    show(0);
    hands->screen(u"FormPresentacion"_s);
    EXPECT_EQ(lines(), head + u"Brumatec|www.brumatec.example|2026|Enter"_s);
    EXPECT_FALSE(hands->get<forms::Picture>(u"ImagenLogoOrquesta"_s).picture().isEmpty());
    EXPECT_EQ(hands->get<forms::Label>(u"LabContinuar"_s).toolTip(), u"     Enter     "_s);
    hands->click(u"LabContinuar"_s);
    hands->screen(u"FormReg1MosCompositor"_s);
    hands->go(68);
    hands->screen(u"FormAcercaDe"_s);
    EXPECT_EQ(lines(), head + u"Brumatec|www.brumatec.example|info@brumatec.example|2026"_s);
    EXPECT_FALSE(hands->get<forms::Picture>(u"ImagenLogoOrquesta"_s).picture().isEmpty());
}

} // namespace
} // namespace zv::test
