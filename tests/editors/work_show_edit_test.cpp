// Showing and changing a work: the stored movements read back, and what its own captions keep a user from.
#include "editors/work_desk.h"

namespace zv::test {
namespace {

class WorkShowEdit : public WorkDesk {
  protected:
    /// Works by what is stored: names, times, total, number; "NULL" for none.
    void open(const QStringList& works) {
        QStringList values;
        for (const QString& work : works) values += u"'Vega', 'Work', "_s + work;
        put({u"Obra"_s, u"Autor, Nombre, Movimientos, TiempoMovimientos, TiempoTotal, NumeroMovimientos"_s, values});
        start();
        hands->go(showNumber);
    }
    void modify() { hands->click(u"BtnModificar"_s); }
    void accept() { hands->click(u"BtnGuardar"_s); }
};

TEST_F(WorkShowEdit, timesAreSplitIntoHoursMinutesAndSeconds) {
    open({u"'a#b#c#d#e#', ' 59# 60# 3599# 3600# 3602#', 59, 5"_s});
    const QString rows = u"a|0|0|59\nb|0|1|0\nc|0|59|59\nd|1|0|0\ne|1|0|2\n"_s;
    EXPECT_EQ(movements(), rows + u"[00:00:59] [5]"_s) << "the total is told as it is stored";
    modify();
    accept();
    EXPECT_EQ(storedMovements(), QStringList{u"a#b#c#d#e#| 59# 60# 3599# 3600# 3602#|59|5"_s});
    modify();
    movement(u"f"_s, u"0"_s, u"0"_s, u"40"_s);
    // 59 + 60 + 3599 + 3600 + 3602 + 40 seconds.
    EXPECT_EQ(movements(), rows + u"f|0|0|40\n[03:02:40] [6]"_s);
    accept();
    EXPECT_EQ(storedMovements(), QStringList{u"a#b#c#d#e#f#| 59# 60# 3599# 3600# 3602# 40#|10960|6"_s});
    EXPECT_EQ(movements(), rows + u"f|0|0|40\n[03:02:40] [6]"_s);
}

TEST_F(WorkShowEdit, namesAndTimesThatDoNotMatch) {
    open({u"'a#b#c#', ' 90#', 90, 3"_s, u"'a#b#', ' 1# 2# 3# 4#', 3602, 2"_s, u"'a#b#', '#', 0, 2"_s,
          u"'#', ' 90#', 90, 0"_s, u"NULL, NULL, NULL, NULL"_s, u"'', '', 90, 0"_s, u"'no end', ' 90', 60, 1"_s,
          u"'a#', NULL, 3725, 7"_s});
    const QString wanted[] = {u"a|0|1|30\nb|||\nc|||\n[00:01:30] [3]"_s,
                              u"a|0|0|1\nb|0|0|4\n[01:00:02] [2]"_s,
                              u"a|0|0|0\nb|||\n[00:00:00] [2]"_s,
                              u"[] []"_s,
                              u"[] []"_s,
                              u"[] []"_s,
                              u"[00:01:00] [1]"_s,
                              u"a|||\n[01:02:05] [7]"_s};
    for (int i = 0; i < 8; ++i) {
        hands->type(u"TxtOrden"_s, QString::number(i + 1));
        EXPECT_EQ(movements(), wanted[i]) << i + 1;
    }
    // Empty cells are times of 0 when they are saved; the number is that of the rows.
    modify();
    accept();
    EXPECT_EQ(storedMovements().last(), u"a#| 0#|3725|1"_s);
}

TEST_F(WorkShowEdit, aWorkWithoutMovementsAfterOneWithThem) {
    open({u"'a#b#', ' 400# 25#', 425, 2"_s, u"'#', '#', 0, 0"_s});
    EXPECT_EQ(movements(), u"a|0|6|40\nb|0|0|25\n[00:07:05] [2]"_s);
    EXPECT_EQ(program->store.module1.IdObraMos, 1);
    hands->type(u"TxtOrden"_s, u"2"_s);
    EXPECT_EQ(movements(), u"[] []"_s);
    EXPECT_EQ(grid().Cols(), 0);
    EXPECT_EQ(program->store.module1.IdObraMos, 2);
    modify();
    accept();
    // The total is what this screen added up or read last.
    EXPECT_EQ(storedMovements(), (QStringList{u"a#b#| 400# 25#|425|2"_s, u"#|#|425|0"_s}));
    EXPECT_EQ(movements(), u"[] []"_s);
    modify();
    movement(u"first"_s, u""_s, u""_s, u"7"_s);
    accept();
    EXPECT_EQ(storedMovements()[1], u"first#| 7#|7|1"_s);
    hands->type(u"TxtOrden"_s, u"1"_s);
    EXPECT_EQ(movements(), u"a|0|6|40\nb|0|0|25\n[00:07:05] [2]"_s);
}

TEST_F(WorkShowEdit, aPickedMovementBlocksTheButtonUntilTheScreenComesAnew) {
    open({u"'a#b#', ' 90#', 50, 2"_s});
    pick(0);
    EXPECT_EQ(stripText(), u"||||Add"_s) << "the record is locked";
    modify();
    pick(1);
    EXPECT_EQ(stripText(), u"b||||Modificar"_s) << "the cells as they are";
    hands->click(u"BtnAMList"_s);
    EXPECT_EQ(stripText(), u"b|00|00|00|Modificar"_s);
    EXPECT_EQ(movements(), u"a|0|1|30\nb|||\n[00:01:30] [2]"_s) << "added up, and no row changed";
    movement(u""_s, u"0"_s, u"0"_s, u"0"_s);
    movement(u"new"_s, u"0"_s, u"5"_s, u"0"_s);
    EXPECT_EQ(grid().Rows(), 2);
    movement(u"new"_s, u"0"_s, u"60"_s, u"0"_s);
    EXPECT_EQ(stripText(), u"new|0||0|Modificar"_s);
    accept();
    EXPECT_EQ(storedMovements(), QStringList{u"a#b#| 90# 0#|90|2"_s});
    EXPECT_EQ(stripText(), u"||||Modificar"_s);
    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(stripText(), u"||||Add"_s);
    modify();
    movement(u"c"_s, u"0"_s, u"0"_s, u"1"_s);
    EXPECT_EQ(movements(), u"a|0|1|30\nb|0|0|0\nc|0|0|1\n[00:01:31] [3]"_s);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(movements(), u"a|0|1|30\nb|0|0|0\n[00:01:30] [2]"_s);
}

TEST_F(WorkShowEdit, lockedMovementsHandTheFocusOn) {
    open({u"'a#', ' 90#', 90, 1"_s});
    const QString controls[] = {u"TxtMovimiento"_s, u"TxtHoras"_s, u"TxtMinutos"_s, u"TxtSegundos"_s, u"MSFlexGrid1"_s};
    for (const QString& name : controls) {
        hands->get<QWidget>(name).setFocus(Qt::MouseFocusReason);
        EXPECT_EQ(focus(), u"BtnRegresar"_s) << name.toStdString();
    }
    EXPECT_FALSE(hands->isEnabled(u"BtnAMList"_s));
    hands->type(u"TxtMovimiento"_s, u"typed"_s);
    EXPECT_EQ(stripText(), u"||||Add"_s);
    modify();
    for (const QString& name : controls) {
        hands->get<QWidget>(name).setFocus(Qt::MouseFocusReason);
        EXPECT_EQ(focus(), name);
    }
    EXPECT_TRUE(hands->isEnabled(u"BtnAMList"_s));
}

} // namespace
} // namespace zv::test
