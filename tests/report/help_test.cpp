// The pages of the help: their chains, the page that is remembered, their words and drawings; and what the opening
// screen and the screen about the program say of it.
#include "report/help_page.h"
#include "report/mock_ups.h"
#include "support/desk.h"
#include <QTextEdit>
#include <QVersionNumber>

namespace zv::test {
namespace {

using namespace Qt::StringLiterals;
namespace mock_ups = report::mock_ups;

struct Page {
    int number;
    QString form, text;
    QString caption; ///< of the label with the tip "Página"
    char16_t last;   ///< letter of the last point
    report::Shapes (*upper)();
    report::Shapes (*lower)();
    QStringList statements; ///< words that stand as they are, blanks included
};

const Page Pages[] = {
    {58,
     u"FormAyudaGeneral"_s,
     u"TxtAyudaGeneral"_s,
     u"1 - 1"_s,
     u'O',
     mock_ups::listOfPictures,
     mock_ups::report,
     {uR"("Zarvelia ®" is a Cataloguing Computer Program, designed exclusively for the World of Classical Music.)"_s,
      uR"("Composer", "Work", "Orchestra-Ensemble-Choir", "Conductor", "Performer", "Format", "Recording", )"
      uR"("Instrument", "Grouping", "Event", "Scenario", "Publication-Video", "Station", "http://www.", )"
      uR"(distributed between "Records I" and "Records II" in a total of 143 fields.)"_s,
      uR"~("Add (New)", "Select", "Show - Edit", "List - Print".)~"_s,
      u"A zoom is available to modify row height, with many display possibilities."_s,
      uR"(The Databases are independent, except for "Recording", which is a Relational Database whose fields are )"
      uR"(formed by records from the other 6 components of "Records I".)"_s,
      uR"("Report" displays the general status of all the records through the counters.)"_s,
      u"Images (.bmp, .gif, .jpg) with an approximate size of 200 pixels on its bigger side must be used."_s,
      u"The images are automatically resized."_s,
      uR"(In the fields "Notes" it is possible to paste text with Ctrl+V (25,000 characters maximum).)"_s,
      u"VERY IMPORTANT: Any data being introduced will be stored at DataZV.mdb."_s}},
    {59,
     u"FormAyudaAnadir1"_s,
     u"TxtAyudaAN1"_s,
     u"1 - 3"_s,
     u'J',
     mock_ups::addComposerEmpty,
     mock_ups::addComposerWithPicture,
     {uR"~("Add (New)" is used for the entry of new records to the Databases.)~"_s, uR"("Save")"_s,
      u"The Identifier (highlighted) must be filled."_s, uR"("Undo" remove the last entered record.)"_s,
      uR"("Remove")"_s, uR"("Notes")"_s}},
    {60,
     u"FormAyudaAnadir2"_s,
     u"TxtAyudaAN2"_s,
     {},
     u'G',
     mock_ups::addOrchestra,
     mock_ups::addWorkWide,
     {uR"("Orchestra-Ensemble-Choir")"_s, uR"("Work")"_s,
      u"The 3 different formations  are catalogued in the same screen, but you should fill in for each new record "
      u"only one field of the 3. (Orchestra or Ensemble or Choir)."_s,
      u"Counters indicate the number of movements (150 maximum) and their total duration."_s, uR"("Extend/Reduce")"_s}},
    {61,
     u"FormAyudaAnadir3"_s,
     u"TxtAyudaAN3"_s,
     {},
     u'L',
     mock_ups::addRecording,
     mock_ups::showConductorWithGroup,
     {uR"("Recording")"_s, u"a message will warn you"_s, uR"("Notes")"_s, uR"("Save")"_s,
      uR"(The Identifier is "Format".)"_s, u"The number of performers is not a field, it is just informative."_s}},
    {62,
     u"FormAyudaSeleccionar"_s,
     u"TxtAyudaSE"_s,
     u"1 - 1"_s,
     u'U',
     mock_ups::selectComposer,
     nullptr,
     {uR"("New")"_s, uR"("Field")"_s, uR"("Criteria")"_s,
      uR"("Same as", "Contains", "Does not Contain", "Smaller than" y "Bigger than")"_s, uR"("Filter Value")"_s,
      uR"("Add")"_s, uR"("AND")"_s, uR"("OR")"_s, u"20 maximum"_s, uR"("Ascending")"_s, uR"("Descending")"_s,
      uR"("Historical")"_s, u"entry order of the records"_s, uR"("Accept")"_s, uR"("All")"_s,
      u"The two first filters selection result will apply always to the third filter, and to the result will apply "
      u"the fourth, and so on."_s,
      uR"("Date", "Date 1", "Date 2", "Century", "Total Time" and "No. of Movements" are numeric)"_s,
      uR"("Recording" admits only "Historical" order.)"_s,
      uR"(At "Work", the "Total Time" value will be given in seconds.)"_s}},
    {63,
     u"FormAyudaMostrar1"_s,
     u"TxtAyudaME1"_s,
     u"1 - 3"_s,
     u'G',
     mock_ups::showComposer,
     mock_ups::showComposerReduced,
     {uR"("Show - Edit" will Show one by one the Selected records and allows its Edition.)"_s,
      uR"("Previous - Next")"_s, uR"("No. of Order")"_s, u"Type a number to go there"_s, uR"("Reduce/Extend")"_s,
      uR"("Current Selection")"_s}},
    {64,
     u"FormAyudaMostrar2"_s,
     u"TxtAyudaME2"_s,
     {},
     u'G',
     mock_ups::modifyComposer,
     mock_ups::modifyComposerFromRecording,
     {uR"("Modify")"_s, uR"(the folders are disabled until "Accept" or "Cancel")"_s,
      u"Do not remove the Identifier. A message will warn you."_s, uR"("Remove")"_s, uR"("Back")"_s,
      uR"("Recording")"_s}},
    {65,
     u"FormAyudaMostrar3"_s,
     u"TxtAyudaME3"_s,
     {},
     u'F',
     mock_ups::showPerformerWithGroup,
     nullptr,
     {uR"("Add")"_s, uR"("Remove")"_s, u"(10 Orchestras, 10 Conductors and 100 Performers maximum)"_s,
      u"If a record is modified or removed while a group is being created, the group will not be created."_s}},
    {66,
     u"FormAyudaListar"_s,
     u"TxtAyudaLI1"_s,
     {},
     u'L',
     mock_ups::listOfTexts,
     mock_ups::listOfPictures,
     {uR"("List - Print" provides Lists for the Selected records.)"_s,
      uR"("Expand Rows" varies the height of the rows (zoom). Initial value is 1.)"_s,
      uR"("Zoom 5" makes the height 5 times bigger than the initial one.)"_s,
      u"Each time you click the vertical bar it will advance one page, never a record. Column width can be "
      u"modified."_s,
      u"The record on the top row will stay at the window even if the zoom is used."_s,
      uR"(The zoom allows you to see till 23 "Movements" from a "Work" o 23 lines of "Notes".)"_s,
      u"Try to list, images only, with zoom 20."_s}},
    {67,
     u"FormAyudaListar2"_s,
     u"TxtAyudaLI2"_s,
     {},
     u'I',
     mock_ups::listOfTexts,
     mock_ups::printedPage,
     {uR"(The fields are chosen as for "List".)"_s, u"The printed  standard page will show:"_s,
      u"Complete text of the fields."_s, uR"(It is suggestible to "List" before using "Print".)"_s}},
};

class HelpTest : public Desk {
  protected:
    shell::FormSolapas& strip() { return program->window.Solapas(); }
    void show(int number) {
        strip().OcultarFormulario();
        strip().MostrarFormulario(number);
    }
    bool has(const QString& button) { return hands->screen()->findChild<QPushButton*>(button) != nullptr; }
    QTextEdit& text(const Page& page) { return hands->get<QTextEdit>(page.text); }
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
        hands->screen(page.form);
        QTextEdit& words = text(page);
        EXPECT_TRUE(words.isReadOnly());
        QString letters, expected;
        for (QTextBlock block = words.document()->begin(); block.isValid(); block = block.next())
            if (block.text().size() > 2 && block.text()[1] == u'\t') letters += block.text()[0];
        for (char16_t letter = u'A'; letter <= page.last; ++letter) expected += QChar(letter);
        EXPECT_EQ(letters, expected);
        for (const QString& statement : page.statements)
            EXPECT_TRUE(words.toPlainText().contains(statement)) << statement.toStdString();
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
