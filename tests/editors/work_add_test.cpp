// Adding a work: its movements by hand, what refuses them, what is stored, what another screen leaves of them.
#include "editors/work_desk.h"
#include "platform/jet/fault_vfs.h"

namespace zv::test {
namespace {

class WorkAdd : public WorkDesk {
  protected:
    void SetUp() override {
        start();
        hands->go(addNumber);
    }
};

TEST_F(WorkAdd, movementsAreAddedChangedAndRemoved) {
    EXPECT_EQ(stripText(), u"||||Add"_s);
    EXPECT_EQ(movements(), u"[] []"_s);
    movement(u"Allegro"_s, u"0"_s, u"07"_s, u"5"_s);
    movement(u"  Andante "_s, u"1"_s, u""_s, u"02"_s);
    EXPECT_EQ(movements(), u"Allegro|0|7|5\n  Andante |1|0|2\n[01:07:07] [2]"_s);
    EXPECT_EQ(stripText(), u"||||Add"_s);
    EXPECT_EQ(focus(), u"TxtMovimiento"_s);
    pick(0);
    EXPECT_EQ(stripText(), u"Allegro|0|7|5|Modify"_s);
    movement(u"Adagio"_s, u"0"_s, u"9"_s, u""_s);
    EXPECT_EQ(movements(), u"Adagio|0|9|0\n  Andante |1|0|2\n[01:09:02] [2]"_s);
    EXPECT_EQ(stripText(), u"||||Add"_s);
    pick(0);
    movement(u"  "_s, u"0"_s, u"9"_s, u"0"_s);
    EXPECT_EQ(movements(), u"  Andante |1|0|2\n[01:00:02] [1]"_s);
    EXPECT_EQ(stripText(), u"||||Add"_s);
    pick(0);
    movement(u""_s, u"1"_s, u"0"_s, u"2"_s);
    EXPECT_EQ(movements(), u"[00:00:00] [0]"_s);
    EXPECT_EQ(grid().Cols(), 0);
    identify();
    save();
    EXPECT_EQ(storedMovements(), QStringList{u"#|#|0|0"_s});
}

TEST_F(WorkAdd, whatCannotBeATimeIsRefusedInSilence) {
    struct Case {
        QString name, hours, minutes, seconds, left, focus;
    };
    const Case refused[] = {
        {u""_s, u"1"_s, u"2"_s, u"3"_s, u"|1|2|3|Add"_s, u"TxtMovimiento"_s},
        {u"   "_s, u""_s, u""_s, u""_s, u"   ||||Add"_s, u"TxtMovimiento"_s},
        {u"a"_s, u"1"_s, u"60"_s, u"99"_s, u"a|1||99|Add"_s, u"TxtMinutos"_s},
        {u"a"_s, u""_s, u"99"_s, u"1"_s, u"a|||1|Add"_s, u"TxtMinutos"_s},
        {u"a"_s, u"1"_s, u"59"_s, u"60"_s, u"a|1|59||Add"_s, u"TxtSegundos"_s},
    };
    for (const Case& c : refused) {
        movement(c.name, c.hours, c.minutes, c.seconds);
        EXPECT_EQ(stripText(), c.left);
        EXPECT_EQ(focus(), c.focus);
        EXPECT_EQ(grid().Rows(), 0);
    }
    for (const char* control : {"TxtHoras", "TxtMinutos", "TxtSegundos"}) {
        put(QLatin1String(control), u"7"_s);
        box(QLatin1String(control)).selectAll();
        hands->paste(QLatin1String(control), u"VI"_s);
        EXPECT_EQ(hands->text(QLatin1String(control)), u"") << control;
    }
    strip(u"late"_s, u"99"_s, u""_s, u""_s);
    hands->paste(u"TxtMinutos"_s, u"-5"_s);
    hands->paste(u"TxtSegundos"_s, u".6"_s);
    hands->click(u"BtnAMList"_s);
    EXPECT_EQ(movements(), u"late|99|5|0.6\n[99:05:01] [1]"_s) << "the total is a whole number of seconds";
}

TEST_F(WorkAdd, secondsAndMinutesCarryOnce) {
    movement(u"a"_s, u"60"_s, u"0"_s, u"59"_s);
    movement(u"b"_s, u"0"_s, u"59"_s, u"59"_s);
    // 118 seconds are one minute and 58; that minute and 59 more are an hour.
    EXPECT_EQ(hands->text(u"TxtTotal"_s), u"61:00:58"_s);
    movement(u"c"_s, u"59"_s, u"59"_s, u"2"_s);
    EXPECT_EQ(hands->text(u"TxtTotal"_s), u"121:00:00"_s);
    identify();
    save();
    EXPECT_EQ(storedMovements(), QStringList{u"a#b#c#| 216059# 3599# 215942#|435600|3"_s});
}

TEST_F(WorkAdd, aWorkHas150MovementsAtTheMost) {
    store::FixedTable& mirror = program->store.module1.MovimientosAna;
    for (int row = 0; row < 149; ++row)
        for (int column = 0; column < 4; ++column) mirror.at(row, column) = column == 0 ? u"m"_s : u"1"_s;
    memory(Kind::Obra).Memo[std::size_t(store::info(Kind::Obra).indexOf(u"NumeroMovimientos"))] = u"149"_s;
    hands->go(57);
    hands->go(addNumber);
    movement(u"150th"_s, u"0"_s, u"0"_s, u"1"_s);
    EXPECT_EQ(grid().Rows(), 150);
    strip(u"151st"_s, u"0"_s, u"99"_s, u"1"_s);
    const QString before = hands->dump(), rows = movements();
    boxes.expect(u"150 Movements Maximum."_s, box::Warning);
    hands->click(u"BtnAMList"_s);
    EXPECT_EQ(hands->dump().toStdString(), before.toStdString());
    EXPECT_EQ(movements(), rows);
    // A change is no addition.
    pick(149);
    movement(u"last"_s, u"0"_s, u"0"_s, u"2"_s);
    EXPECT_EQ(grid().TextMatrix(149, 0), u"last"_s);
    identify();
    save();
    // 149 movements of 3661 seconds and one of 2.
    EXPECT_EQ(storedMovements(),
              QStringList{u"m#"_s.repeated(149) + u"last#|"_s + u" 3661#"_s.repeated(149) + u" 2#|545491|150"_s});
    hands->go(showNumber);
    EXPECT_EQ(grid().Rows(), 150);
    EXPECT_EQ(grid().TextMatrix(149, 0), u"last"_s);
    EXPECT_EQ(hands->text(u"TxtTotal"_s), u"151:31:31"_s);
}

TEST_F(WorkAdd, movementsOutliveOtherScreensButTheirTotalIsAddedUpAnew) {
    movement(u"a"_s, u"0"_s, u"1"_s, u"0"_s);
    movement(u"b"_s, u"0"_s, u"0"_s, u"30"_s);
    identify();
    strip(u"typed"_s, u"1"_s, u"1"_s, u"1"_s);
    const QString shown = movements();
    for (int i = 0; i < 2; ++i) {
        hands->go(showNumber);
        hands->go(addNumber);
        EXPECT_EQ(movements(), shown);
        EXPECT_EQ(stripText(), u"||||Add"_s) << "what was not added is not kept";
        if (i == 0) {
            save(); // the total of this screen is that of its last click: none
            movement(u"a"_s, u"0"_s, u"1"_s, u"0"_s);
            movement(u"b"_s, u"0"_s, u"0"_s, u"30"_s);
            identify();
        }
    }
    pick(0);
    hands->click(u"BtnAMList"_s);
    save();
    EXPECT_EQ(storedMovements(), (QStringList{u"a#b#| 60# 30#|0|2"_s, u"a#b#| 60# 30#|90|2"_s}));
}

TEST_F(WorkAdd, aNameHoldsNoSeparator) {
    hands->type(u"TxtMovimiento"_s, u"a#b##"_s);
    EXPECT_EQ(hands->text(u"TxtMovimiento"_s), u"ab"_s);
    box(u"TxtMovimiento"_s).selectAll();
    hands->paste(u"TxtMovimiento"_s, u"##one # two###"_s);
    EXPECT_EQ(hands->text(u"TxtMovimiento"_s), u"one  two"_s);
    put(u"TxtMovimiento"_s, QString(80, u'x'));
    EXPECT_EQ(hands->text(u"TxtMovimiento"_s).size(), 75);
}

TEST_F(WorkAdd, aWorkIsCalledByTitleNumberAndTonality) {
    hands->type(u"TxtNumero"_s, u"5"_s);
    EXPECT_EQ(hands->text(u"LabNombre"_s), u" No. 5"_s);
    hands->type(u"TxtTonalidad"_s, u"C minor"_s);
    hands->type(u"TxtNombre"_s, u"Symphony"_s);
    EXPECT_EQ(hands->text(u"LabNombre"_s), u"Symphony No. 5 in C minor"_s);
    EXPECT_EQ(hands->get<forms::Label>(u"LabNombre"_s).ToolTipText(), u"Symphony No. 5 in C minor"_s);
    hands->type(u"TxtNumero"_s, u"  "_s);
    EXPECT_EQ(hands->text(u"LabNombre"_s), u"Symphony in C minor"_s);
    for (const char* tip : {"No. of Fields per New Record", "No. of Fields per Record"}) {
        QStringList counts;
        for (const auto* label : hands->screen()->findChildren<forms::Label*>())
            if (label->ToolTipText() == QLatin1String(tip)) counts += label->Caption();
        EXPECT_EQ(counts, QStringList{u"16"_s}) << tip;
    }
}

// The screen is cleaned, the button is not: its row is gone.
TEST_F(WorkAdd, aWorkSavedInTheMiddleOfAChangeLeavesTheButtonInItsState) {
    movement(u"a"_s, u"0"_s, u"1"_s, u"0"_s);
    pick(0);
    identify();
    save();
    EXPECT_EQ(stripText(), u"||||Modify"_s);
    movement(u"next"_s, u"0"_s, u"2"_s, u"0"_s);
    EXPECT_EQ(stripText(), u"next|0|2|0|Add"_s) << "nothing is lost, the next click adds it";
    hands->click(u"BtnAMList"_s);
    EXPECT_EQ(movements(), u"next|0|2|0\n[00:02:00] [1]"_s);
}

const QString Narrow = u"<> grid 4740 5130 column %1 name 4755 3660 button 4755 4830"_s;
const QString Wide = u">< grid 3555 6315 column %1 name 3570 4845 button 3570 6015"_s;

TEST_F(WorkAdd, eachScreenRemembersTheLayoutOfItsMovements) {
    EXPECT_EQ(layout(), Narrow.arg(0));
    movement(u"a"_s, u"0"_s, u"1"_s, u"0"_s);
    EXPECT_EQ(layout(), Narrow.arg(3585));
    hands->click(u"LabExpandir"_s);
    EXPECT_EQ(layout(), Wide.arg(4770));
    EXPECT_EQ(grid().ColWidth(3), 385);
    movement(u"b"_s, u"0"_s, u"1"_s, u"0"_s);
    EXPECT_EQ(layout(), Wide.arg(4770));
    identify();
    save();
    hands->go(showNumber);
    EXPECT_EQ(layout(), Narrow.arg(3585)) << "the other screen has its own";
    hands->click(u"LabExpandir"_s);
    hands->go(addNumber);
    EXPECT_EQ(layout(), Wide.arg(0));
    hands->click(u"LabExpandir"_s);
    hands->go(showNumber);
    EXPECT_EQ(layout(), Wide.arg(4770));
    hands->go(addNumber);
    EXPECT_EQ(layout(), Narrow.arg(0));
}

class WorkOnAFullDisk : public WorkDesk {
  protected:
    void TearDown() override {
        stop();
        vfs.reset();
    }
    std::optional<FaultVfs> vfs = std::make_optional<FaultVfs>();
};

TEST_F(WorkOnAFullDisk, aFailedSaveKeepsWhatWasTypedAndTheMovements) {
    start();
    hands->go(addNumber);
    identify();
    for (const char* year : {"TxtFecha1", "TxtFecha2"}) hands->type(QLatin1String(year), u"1805"_s);
    hands->type(u"TxtNotas"_s, u"notes"_s);
    movement(u"a"_s, u"0"_s, u"1"_s, u"0"_s);
    movement(u"b"_s, u"0"_s, u"0"_s, u"30"_s);
    const QString screen = hands->dump(), rows = movements(), kept = program->store.memory.dump();
    boxes.expect(u"Has occurred Error: 3026"_s, box::Critical);
    vfs->failAfter(0, Fault::NoSpace, 1);
    hands->click(u"BtnGuardar"_s);
    vfs->heal();
    EXPECT_EQ(hands->dump().toStdString(), screen.toStdString());
    EXPECT_EQ(movements(), rows);
    EXPECT_EQ(program->store.memory.dump().toStdString(), kept.toStdString());
    EXPECT_FALSE(program->store.module1.ErrorBaseDatos);
    EXPECT_EQ(storedMovements(), QStringList{});
    save(); // the failed save has used the total up
    EXPECT_EQ(storedMovements(), QStringList{u"a#b#| 60# 30#|0|2"_s});
}

} // namespace
} // namespace zv::test
