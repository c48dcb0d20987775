// The tabs of the program: the way to every screen, and what they remember.
#include "support/desk.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

class NavigatorTest : public Desk {
  protected:
    void SetUp() override { start(); }
    shell::FormSolapas& strip() { return program->window.Solapas(); }
    /// Number and name of the screen on display.
    QString screen() {
        const shell::Screen* shown = strip().loadedScreen(strip().VentanaMostrandose);
        return QString::number(strip().VentanaMostrandose) + u' ' + (shown ? shown->objectName() : u"none"_s);
    }
    int loadedScreens() {
        int count = 0;
        for (int number = 0; number < shell::ScreenCount; ++number) count += strip().loadedScreen(number) != nullptr;
        return count;
    }
    void click(forms::TabControl* tabs, int tab) { hands->clickTab(*tabs, tab); }
};

/// Names of the 68 working screens in the order of their numbers.
QStringList screenNames() {
    const QStringList kinds[] = {
        {u"Compositor"_s, u"Obra"_s, u"Orquesta"_s, u"Director"_s, u"Interprete"_s, u"Soporte"_s, u"Grabacion"_s},
        {u"Instrumento"_s, u"Agrupacion"_s, u"Evento"_s, u"Escenario"_s, u"Publicacion"_s, u"Emisora"_s,
         u"Internet"_s}};
    QStringList names;
    for (const int records : {1, 2})
        for (const QString& function : {u"Ana"_s, u"Sel"_s, u"Mos"_s, u"Lis"_s})
            for (const QString& kind : kinds[records - 1]) names += u"FormReg%1%2%3"_s.arg(records).arg(function, kind);
    return names + QStringList{u"FormInforme"_s,       u"FormAyudaGeneral"_s,  u"FormAyudaAnadir1"_s,
                               u"FormAyudaAnadir2"_s,  u"FormAyudaAnadir3"_s,  u"FormAyudaSeleccionar"_s,
                               u"FormAyudaMostrar1"_s, u"FormAyudaMostrar2"_s, u"FormAyudaMostrar3"_s,
                               u"FormAyudaListar"_s,   u"FormAyudaListar2"_s,  u"FormAcercaDe"_s};
}

TEST_F(NavigatorTest, everyScreenIsReachedByClicksAndStandsAlone) {
    EXPECT_EQ(screen(), u"15 FormReg1MosCompositor"_s);
    const QStringList names = screenNames();
    ASSERT_EQ(names.size(), 68);
    for (int number = 1; number <= 68; ++number) {
        // The later pages of a chain of help are reached through the page that was shown last.
        if (number > 58 && number < 68) hands->go(58);
        if (number >= 59 && number <= 61) strip().AyudaAnadir = static_cast<qint16>(number);
        if (number >= 63 && number <= 65) strip().AyudaMostrar = static_cast<qint16>(number);
        if (number >= 66 && number <= 67) strip().AyudaListar = static_cast<qint16>(number);
        hands->go(number);
        EXPECT_EQ(screen(), QString::number(number) + u' ' + names[number - 1]);
        EXPECT_EQ(loadedScreens(), 1) << number;
        EXPECT_TRUE(hands->screen()->isVisible());
        EXPECT_TRUE(strip().isVisible());
        EXPECT_EQ(program->window.findChildren<QWidget*>(names[number - 1]).size(), 1) << number;
    }
}

TEST_F(NavigatorTest, theTabsCarryTheirCaptions) {
    const auto captions = [](const forms::TabControl* tabs) {
        QStringList texts;
        for (int i = 0; i < tabs->count(); ++i) texts += tabs->tabText(i);
        return texts.join(u'|');
    };
    const QString functions = u"  Add  (New)   |  Select   |   Show - Edit   |  List - Print   "_s;
    EXPECT_EQ(captions(strip().TabNivel1), u"  Records I   |  Records II   |  Report   |  Help   |  About...   "_s);
    EXPECT_EQ(captions(strip().TabRegistros1), functions);
    EXPECT_EQ(captions(strip().TabRegistros2), functions);
    EXPECT_EQ(captions(strip().TabAyuda), u"  General   |"_s + functions);
    const QString entities[] = {u"Composer |Work |Orchestra - Ensemble |Conductor |Performer |Format |Recording "_s,
                                u"Instrument |Grouping |Event |Scenario |Publication - Video |Station |http://www. "_s};
    const QString names[] = {u"Anadir"_s, u"Seleccionar"_s, u"Mostrar"_s, u"Listar"_s};
    for (std::size_t records = 0; records < 2; ++records)
        for (std::size_t function = 0; function < 4; ++function) {
            const forms::TabControl* tabs = strip().TabEntidad[records][function];
            EXPECT_EQ(captions(tabs), entities[records]);
            EXPECT_EQ(tabs->objectName(), u"TabReg%1"_s.arg(records + 1) + names[function]);
        }
}

TEST_F(NavigatorTest, theEntityIsCarriedFromFunctionToFunction) {
    hands->go(3);
    click(strip().TabRegistros1, 2);
    EXPECT_EQ(screen(), u"17 FormReg1MosOrquesta"_s);
    click(strip().TabRegistros1, 3);
    EXPECT_EQ(screen(), u"24 FormReg1LisOrquesta"_s);
    click(strip().TabEntidad[0][3], 5);
    click(strip().TabRegistros1, 0);
    EXPECT_EQ(screen(), u"6 FormReg1AnaSoporte"_s);
    // Records II have a function and an entity of their own.
    click(strip().TabNivel1, 1);
    EXPECT_EQ(screen(), u"43 FormReg2MosInstrumento"_s);
    click(strip().TabEntidad[1][2], 4);
    click(strip().TabRegistros2, 1);
    EXPECT_EQ(screen(), u"40 FormReg2SelPublicacion"_s);
    click(strip().TabNivel1, 0);
    EXPECT_EQ(screen(), u"6 FormReg1AnaSoporte"_s);
    click(strip().TabNivel1, 1);
    EXPECT_EQ(screen(), u"40 FormReg2SelPublicacion"_s);
}

TEST_F(NavigatorTest, reportAboutAndHelpKeepThePosition) {
    hands->go(9);
    for (const int visited : {57, 68, 58, 62}) {
        hands->go(visited);
        click(strip().TabNivel1, 0);
        EXPECT_EQ(screen(), u"9 FormReg1SelObra"_s) << visited;
    }
}

TEST_F(NavigatorTest, lockedTabsTakeNoClickUnlessTheyAreHeld) {
    const auto enabled = [this] {
        QStringList names;
        for (const auto* tabs : strip().findChildren<forms::TabControl*>())
            if (tabs->isEnabled()) names += tabs->objectName();
        names.sort();
        return names;
    };
    const QStringList all = enabled();
    EXPECT_EQ(all.size(), 12);
    strip().BloquearSolapas(true);
    EXPECT_EQ(enabled(), QStringList{u"TabAyuda"_s});
    click(strip().TabNivel1, 2);
    click(strip().TabRegistros1, 0);
    click(strip().TabEntidad[0][2], 3);
    EXPECT_EQ(screen(), u"15 FormReg1MosCompositor"_s);
    program->store.module1.SolapasFijas = true;
    strip().BloquearSolapas(false);
    EXPECT_EQ(enabled(), QStringList{u"TabAyuda"_s});
    program->store.module1.SolapasFijas = false;
    strip().BloquearSolapas(false);
    EXPECT_EQ(enabled(), all);
    program->store.module1.SolapasFijas = true;
    strip().BloquearSolapas(true);
    EXPECT_EQ(enabled(), all);
}

TEST_F(NavigatorTest, aNumberOutsideTheTableShowsNothing) {
    for (const int number : {69, -1, 32000}) {
        strip().MostrarFormulario(number);
        EXPECT_EQ(strip().VentanaMostrandose, number);
        strip().OcultarFormulario();
        EXPECT_EQ(loadedScreens(), 1) << number;
    }
}

TEST_F(NavigatorTest, theWayBackToAnAddedRecordingUnloadsItsOwnScreen) {
    hands->go(9);
    program->store.module1.RegresoAnaGrabacion = true;
    program->store.module1.SolapasFijas = true;
    // The part's Show-Edit screen, as a recording asks for it.
    strip().SolapaRegistros1 = 0;
    strip().setTabRegistros1(2);
    ASSERT_EQ(screen(), u"15 FormReg1MosCompositor"_s);
    const auto& back = hands->get<forms::Button>(u"BtnRegresar"_s);
    EXPECT_EQ(back.Left(), 3390);
    EXPECT_EQ(back.Top(), 7230);
    hands->click(u"BtnRegresar"_s);
    EXPECT_EQ(screen(), u"7 FormReg1AnaGrabacion"_s);
    EXPECT_FALSE(program->store.module1.RegresoAnaGrabacion);
    EXPECT_FALSE(program->store.module1.SolapasFijas);
    EXPECT_TRUE(strip().TabNivel1->isEnabled());
    EXPECT_EQ(loadedScreens(), 1);
}

} // namespace
} // namespace zv::test
