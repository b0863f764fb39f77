// OpenSaveData: the kind 3 project file of the pump network tool, read and
// written field by field in one order.

#include "tools/pump_network/model/pump_network_model.h"

#include "forms/model/document_file.h"
#include "forms/model/user_interface.h"
#include "forms/store/project_file.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/properties/model/phys_props.h"

#include <QFileInfo>

namespace kestrova {

using namespace pump_network;

namespace {

constexpr std::int16_t kPumpNetworkKind = 3;

// Everything of the file after its kind: the pipe data, the fitting and
// reducer tables of every slot, the network, the project, the temperature.
struct PumpNetworkFile {
    SegmentData segments;
    std::array<std::array<Single, 11>, 3> unusedLineArrays{};
    MinorLossStore minorLosses;
    ReducerStore contractions, enlargements;
    NetworkState network;
    std::array<Single, 12> unusedSingles{};
    std::string description;
    Single temperature;
};

// A has-data flag as the file holds it: an integer, -1 for set.
void flag(RecordWriter& out, bool value) { out.integer16(value ? -1 : 0); }
void flag(RecordReader& in, bool& value) { value = in.integer16() != 0; }

// Lines 1 to 11 of a line array.
template <typename Io, typename Values>
void lines(Io& io, Values& values)
{
    for (size_t line = 1; line <= 11; ++line)
        io.field(values[line]);
}

template <typename Io, typename Values>
void all(Io& io, Values& values)
{
    for (auto& value : values)
        io.field(value);
}

template <typename Io>
void walkReducers(Io& io, ReducerStore& store)
{
    for (size_t value = 0; value < 15; ++value) // the slot runs fastest
        for (auto& slot : store.values)
            io.field(slot[value]);
    for (size_t slot = 0; slot < store.hasData.size(); ++slot) {
        bool hasData = store.hasData[slot];
        flag(io, hasData);
        store.hasData[slot] = hasData;
    }
}

// The record after its kind, in file order, for reading and writing alike.
template <typename Io>
void walkRecord(Io& io, PumpNetworkFile& f)
{
    SegmentData& g = f.segments;
    for (LineValues* values : {&g.SegLength, &g.SegID, &g.SegRough, &g.SegDensity, &g.SegVisc})
        lines(io, *values);
    for (auto& values : f.unusedLineArrays)
        all(io, values);
    lines(io, g.SegDpAdd);
    MinorLossStore& m = f.minorLosses;
    for (auto* values : {&m.SegK1, &m.SegK2, &m.SegK3, &m.otherK})
        all(io, *values);
    for (size_t fitting = 0; fitting < kFittingKinds; ++fitting) // the slot runs fastest
        for (auto& slot : m.quantities)
            io.field(slot[fitting]);
    for (size_t slot = 0; slot < m.hasData.size(); ++slot) {
        bool hasData = m.hasData[slot];
        flag(io, hasData);
        m.hasData[slot] = hasData;
    }
    walkReducers(io, f.contractions);
    walkReducers(io, f.enlargements);
    io.field(m.enlargementK);
    io.field(m.contractionK);
    NetworkState& n = f.network;
    for (LineValues* values : {&n.NetFlow, &n.NetVel, &n.NetRe, &n.NetFd, &n.NetDpLine, &n.NetDpCV, &n.NetPDest,
                               &n.NetHeight, &n.NetDpStatic})
        all(io, *values);
    for (Single* value : {&n.PumpHead, &n.VaporPress, &n.MinValveDp, &n.NPSHa, &n.MotorSize, &n.LinePercentDp,
                          &n.PumpEff})
        io.field(*value);
    all(io, f.unusedSingles);
    io.field(f.description);
    io.field(f.temperature);
}

PumpNetworkFile readRecord(RecordReader& in)
{
    PumpNetworkFile f;
    walkRecord(in, f);
    return f;
}

} // namespace

bool PumpNetworkModel::OpenSaveData(const std::string& operation)
{
    ChangeNotice notice(*this);
    const bool ok = (operation == "Save" || operation == "Save As") ? saveFile() : openFile();
    if (ok)
        finishFileOperation();
    return ok;
}

bool PumpNetworkModel::saveFile()
{
    PumpNetworkFile f;
    f.segments = segments;
    f.unusedLineArrays = unusedLineArrays;
    f.minorLosses = minorLossStore();
    f.contractions = contractionStore();
    f.enlargements = enlargementStore();
    f.network = network;
    f.unusedSingles = unusedSingles;
    f.description = txtDescription.text;
    f.temperature = physProps().temperature;
    RecordWriter out;
    out.integer16(kPumpNetworkKind);
    walkRecord(out, f);
    return saveProjectFile(ui_, *this, out.bytes());
}

// Nothing of the window changes until the whole record has been read; then
// every field and row is shown again in the units in force, and the pass
// gives back what the file does not keep (the discharge and suction pressures).
bool PumpNetworkModel::openFile()
{
    PumpNetworkFile file;
    if (!openToolFile(ui_, *this, "This is not a Pump System data file.", readRecord, file))
        return false;
    segments = file.segments;
    unusedLineArrays = file.unusedLineArrays;
    minorLossStore() = file.minorLosses;
    contractionStore() = file.contractions;
    enlargementStore() = file.enlargements;
    network = file.network;
    unusedSingles = file.unusedSingles;
    txtDescription.text = file.description;
    physProps().temperature = file.temperature;
    for (int i = 0; i < kUnitLists; ++i)
        cboUnits_Click(i);
    showPercents();
    NetCalc();
    return true;
}

void PumpNetworkModel::finishFileOperation()
{
    modified = false;
    ui_.setToolbarButtonEnabled("Save", false);
    caption = std::string(kTitle) + ": " + QFileInfo(QString::fromStdString(fileName_)).fileName().toStdString();
}

} // namespace kestrova
