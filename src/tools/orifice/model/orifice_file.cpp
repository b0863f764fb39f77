// The orifice tool's kind 1 project file.

#include "tools/orifice/model/orifice_model.h"

#include "forms/model/document_file.h"
#include "forms/store/project_file.h"
#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "tools/properties/model/phys_props.h"
#include "tools/properties/model/physical_properties_model.h"

#include <QFileInfo>

namespace kestrova {

using namespace orifice;

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
    f.projectAndTags = {txtProject[0].text, txtTag[0].text, txtProject[1].text, txtTag[1].text};
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
    clearFocusRequest();
    record = file.record; // whole, so that typed coefficients of "Other!" survive
    txtDisplay[HeatCapacityRatio].text = plainNumberText(record.heatCapacityRatio);
    for (int t = 0; t < 2; ++t) {
        txtProject[static_cast<size_t>(t)].text = file.projectAndTags[static_cast<size_t>(2 * t)];
        txtTag[static_cast<size_t>(t)].text = file.projectAndTags[static_cast<size_t>(2 * t + 1)];
    }
    liquidName = file.liquidName;
    gasName = file.gasName;
    rememberedCompoundPosition() = file.compoundPosition;
    for (const auto& [kept, value] : savedProperties(physProps(), file))
        *kept = *value;
    Frame1[kPropertiesFrame[LiquidTab]].caption = "Properties:  " + liquidName;
    Frame1[kPropertiesFrame[GasTab]].caption = "Properties:  " + gasName;
    for (int i = 0; i < kFields; ++i)
        showField(i);
    dirty = false;
    ui_.setToolbarButtonEnabled("Save", false);
    ComputeOrifice();
    return true;
}

} // namespace kestrova
