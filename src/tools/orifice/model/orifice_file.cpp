// The orifice tool's kind 1 project file and its data sheets.

#include "tools/orifice/model/orifice_model.h"

#include "datasheets/model/data_sheet.h"
#include "forms/model/document_file.h"
#include "forms/store/project_file.h"
#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "tools/properties/model/phys_props.h"
#include "tools/properties/model/physical_properties_model.h"
#include "units/basLoadUnits.h"

#include <QFileInfo>

namespace kestrova {

namespace {

constexpr std::int16_t kOrificeKind = 1;

// Everything of the file after its kind, in file order.
struct OrificeFile {
    std::int16_t tab = 0, computeOption = 0, tapOption = 0;
    std::array<std::int16_t, 4> materials{}; // element(0), element(1), pipe(0), pipe(1)
    OrificeData record{};
    std::array<std::string, 4> projectAndTags; // project(0), tag(0), project(1), tag(1)
    std::string liquidName, gasName;
    std::int32_t compoundPosition = 0;
    Single heatCapacity, acentricFactor, molecularWeight, criticalTemperature, criticalPressure;
};

// The file after its kind, in order, for reading and writing alike. The
// critical constants stand twice; on reading the later copy wins.
template <typename Io, typename File>
void walkRecord(Io& io, File& f)
{
    io.field(f.tab);
    io.field(f.computeOption);
    io.field(f.tapOption);
    for (auto& m : f.materials)
        io.field(m);
    for (Single* field : f.record.fields())
        io.field(*field);
    io.field(f.criticalTemperature);
    io.field(f.criticalPressure);
    for (auto& text : f.projectAndTags)
        io.field(text);
    io.field(f.liquidName);
    io.field(f.gasName);
    io.field(f.compoundPosition);
    for (auto* value : {&f.heatCapacity, &f.acentricFactor, &f.molecularWeight, &f.criticalTemperature,
                        &f.criticalPressure})
        io.field(*value);
}

// The physical properties the file keeps, each beside its place in the file.
std::array<std::pair<Single*, Single*>, 5> savedProperties(PhysProps& props, OrificeFile& f)
{
    return {{{&props.heatCapacity, &f.heatCapacity},
             {&props.acentricFactor, &f.acentricFactor},
             {&props.molecularWeight, &f.molecularWeight},
             {&props.criticalTemperature, &f.criticalTemperature},
             {&props.criticalPressure, &f.criticalPressure}}};
}

OrificeFile readRecord(RecordReader& in)
{
    OrificeFile f;
    walkRecord(in, f);
    return f;
}

} // namespace

bool OrificeModel::OpenSaveData(const std::string& operation)
{
    ChangeNotice notice(*this);
    const bool ok = (operation == "Save" || operation == "Save As") ? saveFile() : openFile();
    if (!ok)
        return false;
    dirty = false;
    ui_.setToolbarButtonEnabled("Save", false);
    caption = std::string(kTitle) + ": " + QFileInfo(QString::fromStdString(fileName_)).fileName().toStdString();
    return true;
}

bool OrificeModel::saveFile()
{
    PhysProps& props = physProps();
    OrificeFile f;
    f.tab = static_cast<std::int16_t>(tab);
    const auto shown = static_cast<size_t>(tab);
    f.computeOption = static_cast<std::int16_t>(compute[shown] + 3 * tab); // as the control arrays number them
    f.tapOption = static_cast<std::int16_t>(meterTap[shown] + 3 * tab);
    f.materials = {static_cast<std::int16_t>(elementMaterial[0]), static_cast<std::int16_t>(elementMaterial[1]),
                   static_cast<std::int16_t>(pipeMaterial[0]), static_cast<std::int16_t>(pipeMaterial[1])};
    f.record = record;
    f.projectAndTags = {txtProject[0], txtTag[0], txtProject[1], txtTag[1]};
    f.liquidName = liquidName;
    f.gasName = gasName;
    f.compoundPosition = rememberedCompoundPosition();
    for (const auto& [kept, value] : savedProperties(props, f))
        *value = *kept;
    RecordWriter out;
    out.integer16(kOrificeKind);
    walkRecord(out, f);
    return saveProjectFile(ui_, *this, out.bytes());
}

bool OrificeModel::openFile()
{
    OrificeFile file;
    if (!openToolFile(ui_, *this, "This is not an Orifice Plate data file.", readRecord, file))
        return false;
    // The other tab first, so that the tab handler runs in every case; then
    // the options and materials through their handlers.
    const int shown = std::clamp<int>(file.tab, 0, 1);
    SSTab1_Click(1 - shown);
    SSTab1_Click(shown);
    optCompute_Click(std::clamp<int>(file.computeOption, 0, 5));
    optMeterTap_Click(std::clamp<int>(file.tapOption, 0, 5));
    for (int t = 0; t < 2; ++t) {
        cboElementMaterial_Click(t, std::clamp<int>(file.materials[static_cast<size_t>(t)], 0, kMaterials - 1));
        cboPipeMaterial_Click(t, std::clamp<int>(file.materials[static_cast<size_t>(2 + t)], 0, kMaterials - 1));
    }
    focusRequest.clear();
    record = file.record; // whole, so that typed coefficients of "Other!" survive
    txtDisplay[5] = plainNumberText(record.heatCapacityRatio);
    for (int t = 0; t < 2; ++t) {
        txtProject[static_cast<size_t>(t)] = file.projectAndTags[static_cast<size_t>(2 * t)];
        txtTag[static_cast<size_t>(t)] = file.projectAndTags[static_cast<size_t>(2 * t + 1)];
    }
    liquidName = file.liquidName;
    gasName = file.gasName;
    rememberedCompoundPosition() = file.compoundPosition;
    for (const auto& [kept, value] : savedProperties(physProps(), file))
        *kept = *value;
    propertiesCaption = {"Properties:  " + liquidName, "Properties:  " + gasName};
    for (int i = 0; i < kFields; ++i)
        showField(i);
    dirty = false;
    ui_.setToolbarButtonEnabled("Save", false);
    ComputeOrifice();
    return true;
}

void OrificeModel::PrintDataSheet(const DataSheetPrinter& printer)
{
    DataSheetColumns row;
    const auto text = [&](const char* column, const std::string& value) { row.emplace_back(column, value); };
    const auto unitText = [&](int field) {
        const std::vector<std::string>& list = unitList(unitTagOf(field));
        const UnitIndex index = cboUnits[static_cast<size_t>(field)];
        return index >= 0 && index < static_cast<int>(list.size()) ? list[static_cast<size_t>(index)] : std::string();
    };
    const auto field = [&](const char* column, const char* unit, int index) {
        text(column, txtData[static_cast<size_t>(index)]);
        text(unit, unitText(index));
    };
    const int g = tab == 0 ? 0 : 14; // first field of the tab
    const size_t t = static_cast<size_t>(tab);
    std::string computation = captionWithoutAccelerator(computeCaptions()[static_cast<size_t>(compute[t])]);
    computation.pop_back(); // and without its colon
    text("Project", txtProject[t]);
    text("Tag", txtTag[t]);
    text("Fluid", tab == 0 ? liquidName : gasName);
    text("Computation", computation);
    field("Flowrate", "FUnits", g);
    field("delP", "delPU", g + 1);
    field("OriDiameter", "OriDiameterU", g + 2);
    field("Temp", "TempU", g + 3);
    const int p = tab == 0 ? g + 4 : g + 5; // the gas tab has the inlet pressure before its density
    if (tab == 1)
        field("UpPress", "UpPressU", g + 4);
    field("Density", "DUnits", p);
    field("Viscosity", "VisUnits", p + 1);
    if (tab == 1)
        text("kRatio", txtDisplay[5]);
    field("RefT", "RefTU", p + 2);
    if (tab == 0)
        field("VentHoleDia", "VentHoleU", p + 3);
    else
        field("DrainHoleDia", "DrainHoleU", p + 3);
    text("ElementMat", materials()[static_cast<size_t>(elementMaterial[t])].name);
    field("EleExpanCoef", "EleExpanCoefU", p + 4);
    text("TapType", captionWithoutAccelerator(tapCaptions()[static_cast<size_t>(meterTap[t])]));
    field("PipeDiameter", "PipeDiameterU", p + 5);
    text("PipeMat", materials()[static_cast<size_t>(pipeMaterial[t])].name);
    field("PipeExpanCoef", "PipeExpanU", p + 6);
    const int d = tab == 0 ? 0 : 6; // first result display of the tab
    text("BetaRatio", txtDisplay[static_cast<size_t>(d)]);
    text("DisCd", txtDisplay[static_cast<size_t>(d + 1)]);
    text("RenbD", txtDisplay[static_cast<size_t>(d + 2)]);
    text("Rensd", txtDisplay[static_cast<size_t>(d + 3)]);
    if (tab == 1) {
        text("GasExpan", txtDisplay[10]);
        text("PressRatio", txtDisplay[11]);
    }
    text("MinLoss", txtDisplay[tab == 0 ? 4 : 12]);
    field("VelocityD", "VelDU", p + 7);
    field("Velocitysd", "VelsdU", p + 8);
    field("PressLoss", "PressLossU", p + 9);
    printer.print(tab == 0 ? DataSheetReport{"ORPLiquid", "orpliquid.rpt", "Orifice Plate - Liquid Flow"}
                           : DataSheetReport{"ORPGas", "orpgas.rpt", "Orifice Plate - Gas/Vapor Flow"},
                  std::move(row));
}

} // namespace kestrova
