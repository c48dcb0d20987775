// A form to put controls on, in a window of its own, with escaped errors gathered by their numbers.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "support/error_of.h"
#include "support/readable.h"
#include <QPointer>
#include <QtTest/QTest>
#include <gtest/gtest.h>

namespace zv::forms {

using test::errorOf;

using namespace Qt::StringLiterals;

class BenchForm : public Form {
  public:
    BenchForm(QWidget* parent, const Scale& scale, const QString& name = u"FormBanco"_s)
        : Form(parent, scale, name, 10320, 7755) {}
    using Form::add;
    int loads = 0, unloads = 0;

  protected:
    void Form_Load() override { ++loads; }
    void Form_Unload() override { ++unloads; }
};

class Bench : public ::testing::Test {
  public:
    ~Bench() override { setFatalErrorHandler(before_); }

  protected:
    Bench() {
        before_ = setFatalErrorHandler([this](const RuntimeError& error) { errors += error.number(); });
        window.resize(700, 530);
        form = new BenchForm(&window, scale);
        form->setPosition(0, 0);
        form->Show();
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    /// Counts the events of a control.
    Handler counted() {
        return [this] { ++fired; };
    }
    /// How many events the work sets off, inside itself.
    template <class Work>
    int firedBy(Work&& work) {
        fired = 0;
        work();
        return fired;
    }
    /// Turns the wheel over a widget; true if the widget took the event.
    static bool wheel(QWidget& widget, int delta) {
        const QPointF middle = widget.rect().center();
        QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        event.ignore();
        QCoreApplication::sendEvent(&widget, &event);
        return event.isAccepted();
    }

    Scale scale{1.0};
    QWidget window;
    BenchForm* form;
    int fired = 0;
    QList<int> errors;

  private:
    FatalErrorHandler before_;
};

} // namespace zv::forms
