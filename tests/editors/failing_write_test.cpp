// What the editors do when the disk or another program refuses a write.
#include "editors/editor_member.h"
#include "platform/jet/fault_vfs.h"

#include <SQLiteCpp/SQLiteCpp.h>

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

class FailingWrite : public EditorMember {
  protected:
    void SetUp() override {
        fill(2);
        vfs.emplace();
        start();
    }
    void TearDown() override {
        stop();
        vfs.reset();
    }
    /// Clicks with a disk whose next change fails, and expects its report.
    void clickFailing(const QString& button, Fault fault, int number) {
        boxes.expect(u"Has occurred Error: %1"_s.arg(number), box::Critical);
        vfs->failAfter(0, fault, 1);
        hands->click(button);
        EXPECT_TRUE(vfs->hasFailed());
        vfs->heal();
        EXPECT_FALSE(program->store.module1.ErrorBaseDatos);
        EXPECT_EQ(program->store.module1.Err, number);
    }
    struct Case {
        Fault fault;
        int number;
    };
    static constexpr Case Cases[] = {{Fault::NoSpace, 3026}, {Fault::IoError, 3049}, {Fault::ReadOnly, 3027}};

    std::optional<FaultVfs> vfs;
};

INSTANTIATE_TEST_SUITE_P(Editors, FailingWrite, EditorMembers, memberName);

TEST_P(FailingWrite, aFailedSaveIsToldAndTheScreenStandsEmpty) {
    hands->go(addNumber);
    // A heading of two boxes starts as the blank between them and is emptied with the screen.
    const QString screen = hands->dump().replace(u"LabNombre = \" \""_s, u"LabNombre = \"\""_s);
    const QString before = program->store.memory.dump();
    for (const Case& c : Cases) {
        SCOPED_TRACE(c.number);
        for (const store::Field* field : textBoxes())
            hands->type(field->control.toString(), field->value == store::Value::Year ? u"17"_s : u"lost"_s);
        clickFailing(u"BtnGuardar"_s, c.fault, c.number);
        EXPECT_EQ(hands->dump().toStdString(), screen.toStdString());
        EXPECT_EQ(program->store.memory.dump().toStdString(), before.toStdString());
        EXPECT_EQ(identifiers(), (QStringList{u"Row 1"_s, u"Row 2"_s}));
    }
    identify(u"Row 3"_s);
    save();
    EXPECT_EQ(identifiers(), (QStringList{u"Row 1"_s, u"Row 2"_s, u"Row 3"_s}));
    EXPECT_EQ(memory().Cont, 3);
}

TEST_P(FailingWrite, aFailedChangeShowsTheRowAsItIs) {
    hands->go(showNumber);
    hands->type(u"TxtOrden"_s, u"2"_s);
    const QString screen = hands->dump(), before = program->store.memory.dump();
    for (const Case& c : Cases) {
        SCOPED_TRACE(c.number);
        hands->click(u"BtnModificar"_s);
        identify(u"lost"_s);
        clickFailing(u"BtnGuardar"_s, c.fault, c.number);
        EXPECT_EQ(hands->dump().toStdString(), screen.toStdString());
        expectQuestion();
        hands->click(u"BtnEliminar"_s);
        clickFailing(u"BtnGuardar"_s, c.fault, c.number);
        EXPECT_EQ(hands->dump().toStdString(), screen.toStdString());
    }
    EXPECT_EQ(program->store.memory.dump().toStdString(), before.toStdString());
    EXPECT_EQ(identifiers(), (QStringList{u"Row 1"_s, u"Row 2"_s}));
    hands->click(u"BtnModificar"_s);
    identify(u"changed"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(identifiers(), (QStringList{u"Row 1"_s, u"changed"_s}));
}

} // namespace
} // namespace zv::test
