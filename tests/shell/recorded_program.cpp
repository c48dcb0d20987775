#include "shell/recorded_program.h"

namespace zv::test {

using namespace Qt::StringLiterals;

namespace {

void fail(const QString& words) { ADD_FAILURE() << words.toStdString(); }

} // namespace

class RecordedProgram::RecordedScreen : public shell::Screen {
  public:
    RecordedScreen(RecordedProgram& program, QWidget* parent, const QString& name, int number)
        : Screen(program.context, parent, name), program_(program), number_(number) {
        auto* button = add<forms::Button>(u"BtnPress"_s, {300, 300, 1500, 600});
        button->Click = [this] {
            program_.note(u"press"_s, number_);
            if (program_.onButton) program_.onButton(number_);
        };
    }
    void Carga() override {
        program_.note(u"fill"_s, number_);
        if (program_.onCarga) program_.onCarga(number_);
    }

  protected:
    void Form_Load() override { program_.note(u"load"_s, number_); }
    void Form_Unload() override {
        program_.note(u"unload"_s, number_);
        if (program_.onUnload) program_.onUnload(number_);
    }

  private:
    RecordedProgram& program_;
    int number_;
};

RecordedProgram::RecordedProgram() : boxes(fail), files(fail) {
    setFatalErrorHandler([](const RuntimeError& error) {
        ADD_FAILURE() << "Run-time error " << error.number() << ": " << error.text().toStdString();
    });
    engine.CreateDatabase(folder.filePath(store::DatabaseFile));
    std::vector<shell::ScreenEntry> screens;
    for (int number = 0; number < shell::ScreenCount; ++number)
        screens.push_back(
            {u"Form%1"_s.arg(number), [this, number](shell::Context&, QWidget* parent, const QString& name) {
                 return new RecordedScreen(*this, parent, name, number);
             }});
    window = std::make_unique<shell::FormMdi>(engine, context, scale, std::move(screens));
}

RecordedProgram::~RecordedProgram() {
    window.reset();
    boxes.checkAllShown();
}

// The strip before the first working screen counts as on.
void RecordedProgram::note(const QString& what, int number) {
    log += u"%1 %2, number %3, %4"_s.arg(what, QString::number(number), QString::number(strip().VentanaMostrandose),
                                         strip().isEnabled() ? u"on"_s : u"off"_s);
}

std::string RecordedProgram::events() { return std::exchange(log, {}).join(u'\n').toStdString(); }

} // namespace zv::test
