// One field commit in a document tool's window, as a user makes it: the text
// typed into a field, the field left, the tool's calculation, and the
// window's refresh from its model, offscreen.

#include "forms/model/scripted_user_interface.h"
#include "frame/model/shared_stores.h"
#include "tools/orifice/ui/frmOrificePlates.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/pressure_drop/ui/frmPressureDrop.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "tools/pump_network/ui/frmPumpSystem.h"

#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <benchmark/benchmark.h>

#include <functional>

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

// A tool's window over its loaded model, shown and active, as the frame opens it.
template <typename Model, typename Window>
struct ShownWindow {
    // The shared stores start afresh before the model reads them.
    struct FreshStores {
        FreshStores() { resetSharedStores(); }
    } stores;
    ScriptedUserInterface ui;
    Model model{ui};
    Window window{model, ui};

    bool show()
    {
        model.Form_Load();
        window.show();
        window.activateWindow();
        const bool active = QTest::qWaitForWindowActive(&window); // a field takes the focus only in the active window
        model.Form_Activate();
        return active;
    }
};

template <typename Model, typename Window>
void windowCommit(benchmark::State& state, std::initializer_list<std::pair<const char*, const char*>> setUp,
                  const char* field, const char* first, const char* second,
                  const std::function<void(Model&)>& prepare = {})
{
    ShownWindow<Model, Window> tool;
    if (!tool.show())
        state.SkipWithError("the window did not become active");
    Window& window = tool.window;
    if (prepare)
        prepare(tool.model);
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

// A section changed by its option: the captions of the conduit's rows change,
// so the window names its inputs again for a screen reader.
void BM_PressureDropSectionChange(benchmark::State& state)
{
    ShownWindow<PressureDropModel, frmPressureDrop> tool;
    tool.show();
    QRadioButton* options[] = {tool.window.findChild<QRadioButton*>("optCrossSection(1)"),
                               tool.window.findChild<QRadioButton*>("optCrossSection(2)")};
    bool flip = false;
    for (auto _ : state) {
        options[(flip = !flip) ? 1 : 0]->click();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(BM_PressureDropSectionChange)->Unit(benchmark::kMicrosecond);

void BM_OrificeWindowCommit(benchmark::State& state)
{
    windowCommit<OrificeModel, frmOrificePlates>(
        state, {{"txtData(1)", "10"}, {"txtData(2)", "2.013"}, {"txtData(3)", "68"}, {"txtData(4)", "62.4"},
                {"txtData(5)", "0.001"}, {"txtData(9)", "4.026"}},
        "txtData(1)", "10", "12");
}
BENCHMARK(BM_OrificeWindowCommit)->Unit(benchmark::kMicrosecond);

// A cooling water loop of schedule 40 steel: 8 in suction, 6 in header,
// 4, 3 and 2 in branches, water at 85 °F.
SegmentData coolingWaterPipes()
{
    const double ids[] = {7.981, 6.065, 2.067, 6.065, 3.068, 3.068, 4.026, 4.026, 4.026, 2.067, 2.067};
    const double lengths[] = {30, 40, 120, 250, 150, 100, 80, 120, 60, 90, 110};
    SegmentData pipes{};
    for (size_t line = 1; line <= 11; ++line) {
        pipes.SegID[line] = ids[line - 1];
        pipes.SegLength[line] = lengths[line - 1];
        pipes.SegRough[line] = 0.00015;
        pipes.SegDensity[line] = 62.2;
        pipes.SegVisc[line] = 0.0008;
    }
    return pipes;
}

// One commit in the pump network tool's model: the flow of a line typed and
// left, the pass over the network, every field and grid row shown again.
void BM_PumpNetworkModelCommit(benchmark::State& state)
{
    resetSharedStores();
    ScriptedUserInterface ui;
    PumpNetworkModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    tool.useNetwork(NetworkState{}, coolingWaterPipes());
    const std::pair<int, const char*> ends[] = {{0, "60,000"}, {3, "45,000"}, {6, "90,000"}, {9, "20,000"},
                                                {12, "15,000"}, {15, "10,000"}, {16, "14.7"}, {13, "35"}};
    for (const auto& [field, text] : ends)
        tool.commit(pump_network::txtData(field), text);
    if (tool.view().txtData[pump_network::PumpHead].text == "0.00")
        state.SkipWithError("the network gave no pump head");
    bool flip = false;
    for (auto _ : state)
        tool.commit(pump_network::txtData(pump_network::Line8Flow), (flip = !flip) ? "90,000" : "95,000");
}
BENCHMARK(BM_PumpNetworkModelCommit)->Unit(benchmark::kMicrosecond);

// The same in the window: the widgets of the drawing, the pump pane and the
// grid redrawn from the model.
void BM_PumpNetworkWindowCommit(benchmark::State& state)
{
    windowCommit<PumpNetworkModel, frmPumpSystem>(
        state, {{"txtData(0)", "60,000"}, {"txtData(3)", "45,000"}, {"txtData(15)", "10,000"}, {"txtData(16)", "14.7"}},
        "txtData(6)", "90,000", "95,000",
        [](PumpNetworkModel& model) { model.useNetwork(NetworkState{}, coolingWaterPipes()); });
}
BENCHMARK(BM_PumpNetworkWindowCommit)->Unit(benchmark::kMicrosecond);

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
