// One field commit in a document tool's window, as a user makes it: the text
// typed into a field, the field left, the tool's calculation, and the
// window's refresh from its model, offscreen.

#include "forms/model/scripted_user_interface.h"
#include "forms/store/global_units.h"
#include "tools/orifice/ui/frmOrificePlates.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/pressure_drop/ui/frmPressureDrop.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <benchmark/benchmark.h>

using namespace kestrova;

namespace {

// Types the text into the field and leaves it.
void commitField(QLineEdit* field, const QString& text)
{
    field->setFocus();
    field->setText(text);
    field->setModified(true);
    field->clearFocus();
}

template <typename Model, typename Window>
void windowCommit(benchmark::State& state, std::initializer_list<std::pair<const char*, const char*>> setUp,
                  const char* field, const char* first, const char* second)
{
    globalUnits() = GlobalUnits{};
    minorLossStore() = MinorLossStore{};
    ScriptedUserInterface ui;
    Model model(ui);
    Window window(model, ui);
    model.Form_Load();
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) // a field takes the focus only in the active window
        state.SkipWithError("the window did not become active");
    model.Form_Activate();
    for (const auto& [name, text] : setUp)
        commitField(window.template findChild<QLineEdit*>(name), text);
    QLineEdit* edited = window.template findChild<QLineEdit*>(field);
    if (window.template findChild<QLineEdit*>("txtData(0)")->text() == "0") // the case was not taken
        state.SkipWithError("the fields of the case were not committed");
    bool flip = false;
    for (auto _ : state) {
        commitField(edited, (flip = !flip) ? first : second);
        QCoreApplication::processEvents();
    }
}

void BM_PressureDropWindowCommit(benchmark::State& state)
{
    windowCommit<PressureDropModel, frmPressureDrop>(
        state, {{"txtData(0)", "36000"}, {"txtData(1)", "62.4"}, {"txtData(2)", "0.001"}, {"txtData(5)", "6.065"},
                {"txtData(6)", "0.00015"}},
        "txtData(8)", "100", "200");
}
BENCHMARK(BM_PressureDropWindowCommit)->Unit(benchmark::kMicrosecond);

void BM_OrificeWindowCommit(benchmark::State& state)
{
    windowCommit<OrificeModel, frmOrificePlates>(
        state, {{"txtData(1)", "10"}, {"txtData(2)", "2.013"}, {"txtData(3)", "68"}, {"txtData(4)", "62.4"},
                {"txtData(5)", "0.001"}, {"txtData(9)", "4.026"}},
        "txtData(1)", "10", "12");
}
BENCHMARK(BM_OrificeWindowCommit)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
