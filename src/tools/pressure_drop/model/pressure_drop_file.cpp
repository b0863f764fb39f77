// OpenSaveData: the kind 2 project file of the pressure drop tool, read and
// written field by field in one order.

#include "tools/pressure_drop/model/pressure_drop_model.h"

#include "forms/model/document_file.h"
#include "forms/store/project_file.h"
#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/properties/model/phys_props.h"

#include <QFileInfo>

namespace kestrova {

using namespace pressure_drop;

namespace {

constexpr std::int16_t kPressureDropKind = 2;

// Everything of the file after its kind, in file order.
struct PressureDropFile {
    std::int16_t tab = 0, crossSection = 0, calcType = 0, orientation = 0;
    MinorLossStore minorLosses;
    PressureDropData record;
    std::array<std::string, 6> projectAndTags; // project(0), tag(0), project(1), ...
    std::string liquidName, gasName;
    Single temperature, criticalTemperature, criticalPressure, heatCapacity, acentricFactor;
};

// The minor loss items of slot 0 and the tables of all slots; the same order
// serves both ways, so one walk reads or writes them.
template <typename Io, typename Int16, typename Sgl>
void walkMinorLosses(MinorLossStore& m, Int16 integer16, Sgl single)
{
    single(m.SegK1[0]);
    single(m.SegK2[0]);
    single(m.SegK3[0]);
    single(m.otherK[0]);
    for (int n = 0; n < kFittingKinds; ++n)
        for (int slot = 0; slot < kMinorLossSlots; ++slot)
            integer16(m.quantities[static_cast<size_t>(slot)][static_cast<size_t>(n)]);
    for (int c = 0; c < kReservedColumns; ++c)
        for (int slot = 0; slot < kMinorLossSlots; ++slot)
            single(m.reservedTable2[static_cast<size_t>(slot)][static_cast<size_t>(c)]);
    for (int slot = 0; slot < kMinorLossSlots; ++slot)
        integer16(m.reservedTable3[static_cast<size_t>(slot)]);
    for (int c = 0; c < kReservedColumns; ++c)
        for (int slot = 0; slot < kMinorLossSlots; ++slot)
            single(m.reservedTable4[static_cast<size_t>(slot)][static_cast<size_t>(c)]);
    for (int slot = 0; slot < kMinorLossSlots; ++slot)
        integer16(m.reservedTable5[static_cast<size_t>(slot)]);
    single(m.enlargementK);
    single(m.contractionK);
}

PressureDropFile readRecord(RecordReader& in)
{
    PressureDropFile f;
    f.tab = in.integer16();
    f.crossSection = in.integer16();
    f.calcType = in.integer16();
    f.orientation = in.integer16();
    f.minorLosses = minorLossStore();
    walkMinorLosses<RecordReader>(f.minorLosses, [&](std::int16_t& v) { v = in.integer16(); },
                                  [&](Single& v) { v = in.single(); });
    for (Single* field : f.record.fields())
        *field = in.single();
    for (std::string& text : f.projectAndTags)
        text = in.text();
    f.liquidName = in.text();
    f.gasName = in.text();
    f.temperature = in.single();
    f.criticalTemperature = in.single();
    f.criticalPressure = in.single();
    f.heatCapacity = in.single();
    f.acentricFactor = in.single();
    return f;
}

} // namespace

bool PressureDropModel::OpenSaveData(const std::string& operation)
{
    ChangeNotice notice(*this);
    const bool ok = (operation == "Save" || operation == "Save As") ? saveFile() : openFile();
    if (ok)
        finishFileOperation();
    return ok;
}

bool PressureDropModel::saveFile()
{
    RecordWriter out;
    out.integer16(kPressureDropKind);
    out.integer16(static_cast<std::int16_t>(tab));
    out.integer16(static_cast<std::int16_t>(crossSectionOfShownTab()));
    out.integer16(static_cast<std::int16_t>(calcType));
    out.integer16(static_cast<std::int16_t>(orientation));
    walkMinorLosses<RecordWriter>(minorLossStore(), [&](std::int16_t v) { out.integer16(v); },
                                  [&](Single v) { out.single(v); });
    for (Single* field : record.fields())
        out.single(*field);
    for (int t = 0; t < 3; ++t) {
        out.text(txtProject[static_cast<size_t>(t)].text);
        out.text(txtTag[static_cast<size_t>(t)].text);
    }
    out.text(liquidName);
    out.text(gasName);
    const PhysProps& props = physProps();
    for (Single value : {props.temperature, props.criticalTemperature, props.criticalPressure, props.heatCapacity,
                         props.acentricFactor})
        out.single(value);

    return saveProjectFile(ui_, *this, out.bytes());
}

bool PressureDropModel::openFile()
{
    PressureDropFile file;
    if (!openToolFile(ui_, *this, "This is not a Pressure Drop data file.", readRecord, file))
        return false;

    // The tab and the options, each through its click routine.
    SSTab1_Click(file.tab);
    const int section = std::clamp<int>(file.crossSection, 0, 5);
    optCrossSection_Click(tab == LiquidTab ? section % 3 : 3 + section % 3);
    optCalcType_Click(std::clamp<int>(file.calcType, 0, 1));
    optOrientation_Click(std::clamp<int>(file.orientation, 0, 2));

    minorLossStore() = file.minorLosses;
    record = file.record;
    for (int t = 0; t < 3; ++t) {
        txtProject[static_cast<size_t>(t)].text = file.projectAndTags[static_cast<size_t>(2 * t)];
        txtTag[static_cast<size_t>(t)].text = file.projectAndTags[static_cast<size_t>(2 * t + 1)];
    }
    PhysProps& props = physProps();
    props.temperature = file.temperature;
    props.criticalTemperature = file.criticalTemperature;
    props.criticalPressure = file.criticalPressure;
    props.heatCapacity = file.heatCapacity;
    props.acentricFactor = file.acentricFactor;

    liquidName = file.liquidName;
    gasName = file.gasName;
    Frame1[LiquidFluidFrame].caption = "Fluid Data:  " + liquidName;
    Frame1[GasFluidFrame].caption = "Fluid Data:  " + gasName;
    txtLiquid.text = liquidName;
    txtGas.text = gasName;
    showFluidNames();

    minorLossStore().hasData[0] = true;
    showKSums();
    for (int i = 0; i <= GasConduitWidth; ++i)
        showField(i);
    txtDisplay[MolecularWeight].text = plainNumberText(record.MolecularWeight);
    txtDisplay[Compressibility].text = plainNumberText(record.Compressibility);
    txtDisplay[HeatCapacityRatio].text = plainNumberText(record.HeatCapacityRatio);
    CalculateResults();
    return true;
}

void PressureDropModel::finishFileOperation()
{
    DirtyFlag = false;
    ui_.setToolbarButtonEnabled("Save", false);
    caption = std::string(kTitle) + ": " + QFileInfo(QString::fromStdString(fileName_)).fileName().toStdString();
}

} // namespace kestrova
