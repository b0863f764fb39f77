#include "tools/piping/model/pipe_model.h"

#include "forms/store/global_units.h"
#include "forms/store/settings_store.h"
#include "forms/model/user_interface.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/piping/model/pipe_selection.h"
#include "tools/piping/model/roughness_model.h"

#include <QDir>

namespace kestrova {

namespace {

constexpr const char* kPrefixLetters[] = {"E", "N", "T"};
constexpr const char* kFileSuffixes[] = {"M.dat", "NM.dat", "T.dat"};
constexpr const char* kMaterialKeys[] = {"ASTMPipe", "DINPipe"};
constexpr const char* kConditionKeys[] = {"ASTMCondition", "DINCondition"};

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

const char* PipeModel::classCaption(int pipeClass)
{
    return pipeClass == 0 ? "&ANSI/ASTM" : "&ISO/DIN";
}

const char* PipeModel::kindCaption(int kind)
{
    static const char* captions[] = {"&Metal Pipe", "&Non-Metal/Lined Pipe", "&Tubing"};
    return captions[kind];
}

PipeModel::PipeModel(UserInterface& ui, SettingsStore* store, QString dataFolder, QObject* parent)
    : FormModel(parent), ui_(ui), store_(store), folder_(std::move(dataFolder))
{
    using namespace pipe_sizes;
    ControlRegistry& all = controls();
    for (int c = 0; c < 2; ++c) {
        PipeClassState& state = classes[static_cast<size_t>(c)];
        for (int kind = 0; kind < 3; ++kind)
            all.add(optMaterial(c, kind), state.optMaterial[static_cast<size_t>(kind)]);
        for (int condition = 0; condition < 2; ++condition)
            all.add(optCondition(c, condition), state.optCondition[static_cast<size_t>(condition)]);
        state.txtRoughness.locked = true;
        state.txtRoughness.tabStop = false;
        state.txtRoughness.keys = KeyRule::Number;
        state.txtRoughness.shade = FieldShade::Tinted;
        all.add(txtRoughness(c), state.txtRoughness);
        all.add(cboUnits(c), state.cboUnits);
    }
    all.add(pipe_sizes::tabPipeClass, tabPipeClass);
    all.add(pipe_sizes::cmdSelect, cmdSelect);
    cmdSelect.enabled = false; // a viewer by itself, until a tool asks for a size
    showChoices();
}

// The tab, the options and the Select button show the choices.
void PipeModel::showChoices()
{
    tabPipeClass.listIndex = pipeClass;
    for (PipeClassState& state : classes) {
        for (int kind = 0; kind < 3; ++kind)
            state.optMaterial[static_cast<size_t>(kind)].checked = kind == state.kind;
        for (int condition = 0; condition < 2; ++condition)
            state.optCondition[static_cast<size_t>(condition)].checked = condition == state.condition;
    }
}

QString PipeModel::dataBasePath(int c) const
{
    return QDir(folder_).filePath(c == 0 ? "pipeastm.sqlite" : "pipedin.sqlite");
}

void PipeModel::report(const DataFileError& error)
{
    ui_.ask(kTitle, error.what(), MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
}

void PipeModel::Form_Load()
{
    ChangeNotice notice(*this);
    optMaterial_Click(1, 0);
    optMaterial_Click(0, 0);
    if (store_) {
        const int chosenClass = store_->getIndex("Settings", "PipeClass", 0, 2);
        for (int c = 0; c < 2; ++c) {
            const int kind = store_->getIndex("Settings", kMaterialKeys[c], 0, 3);
            if (kind != 0)
                optMaterial_Click(c, kind);
            optCondition_Click(c, store_->getIndex("Settings", kConditionKeys[c], 0, 2));
        }
        tabPipeClass_Click(chosenClass);
    }
    loaded_ = true;
}

void PipeModel::Form_Activate()
{
    ChangeNotice notice(*this);
    for (int c = 0; c < 2; ++c)
        setUnit(c, globalUnits()[Quantity::Roughness]);
}

void PipeModel::tabPipeClass_Click(int c)
{
    if (c < 0 || c > 1)
        return;
    ChangeNotice notice(*this);
    pipeClass = c;
    showChoices();
    if (loaded_ && store_)
        store_->save("Settings", "PipeClass", std::to_string(c));
}

void PipeModel::optMaterial_Click(int c, int kind)
{
    if (c < 0 || c > 1 || kind < 0 || kind > 2)
        return;
    ChangeNotice notice(*this);
    PipeClassState& state = classes[static_cast<size_t>(c)];
    state.kind = kind;
    showChoices();
    state.materials.clear();
    try {
        for (const std::string& table : pipeTableNames(dataBasePath(c)))
            if (table.rfind(kPrefixLetters[kind], 0) == 0)
                state.materials.push_back(table.substr(1));
    } catch (const DataFileError& error) {
        report(error);
    }
    lstMaterial_Click(c, 0);
    if (loaded_ && store_)
        store_->save("Settings", kMaterialKeys[c], std::to_string(kind));
}

void PipeModel::lstMaterial_Click(int c, int index)
{
    if (c < 0 || c > 1)
        return;
    ChangeNotice notice(*this);
    PipeClassState& state = classes[static_cast<size_t>(c)];
    state.grid = {};
    state.currentRow = state.currentColumn = 0;
    if (index < 0 || index >= static_cast<int>(state.materials.size()))
        return;
    state.material = index;
    try {
        const BusyPointer busy(ui_);
        state.grid = readPipeTable(dataBasePath(c), kPrefixLetters[state.kind] + state.materials[static_cast<size_t>(index)]);
    } catch (const DataFileError& error) {
        report(error);
    }
    computeRoughness(c);
}

void PipeModel::computeRoughness(int c)
{
    PipeClassState& state = classes[static_cast<size_t>(c)];
    const QString file = QDir(folder_).filePath(QString(c == 0 ? "ASTM" : "DIN") + kFileSuffixes[state.kind]);
    try {
        const std::array<Single, 16> values = readRoughnessFile(file);
        const Single entry = values[static_cast<size_t>(std::clamp(state.material, 0, 15))];
        state.roughness = state.condition == 1 ? entry * 3 : static_cast<double>(entry);
    } catch (const DataFileError& error) {
        report(error);
    }
    showRoughness(c);
}

void PipeModel::showRoughness(int c)
{
    PipeClassState& state = classes[static_cast<size_t>(c)];
    state.txtRoughness.text = roughnessText(state.roughness, state.cboUnits.listIndex);
}

void PipeModel::optCondition_Click(int c, int condition)
{
    if (c < 0 || c > 1 || condition < 0 || condition > 1)
        return;
    ChangeNotice notice(*this);
    classes[static_cast<size_t>(c)].condition = condition;
    showChoices();
    computeRoughness(c);
    if (loaded_ && store_)
        store_->save("Settings", kConditionKeys[c], std::to_string(condition));
}

void PipeModel::setUnit(int c, UnitIndex unit)
{
    if (c < 0 || c > 1)
        return;
    ChangeNotice notice(*this);
    classes[static_cast<size_t>(c)].cboUnits.listIndex = unit;
    showRoughness(c);
}

void PipeModel::setCurrentCell(int c, int row, int column)
{
    if (c < 0 || c > 1)
        return;
    classes[static_cast<size_t>(c)].currentRow = row;
    classes[static_cast<size_t>(c)].currentColumn = column;
}

void PipeModel::grdPipeSize_DblClick()
{
    if (cmdSelect.enabled)
        cmdSelect_Click();
}

void PipeModel::cmdSelect_Click()
{
    ChangeNotice notice(*this);
    const PipeClassState& state = classes[static_cast<size_t>(pipeClass)];
    const bool cellExists = state.currentColumn >= 0 && state.currentColumn < static_cast<int>(state.grid.headings.size()) &&
                            state.currentRow >= 0 && state.currentRow < static_cast<int>(state.grid.rows.size());
    const std::string heading = cellExists ? trimmed(state.grid.headings[static_cast<size_t>(state.currentColumn)]) : "";
    if (heading.substr(0, 2) != selector) {
        ui_.ask(kTitle, "Please select a pipe/tube " + selector + "...", MessageIcon::Warning, MessageButtons::Ok,
                MessageAnswer::Ok);
        return;
    }
    Single diameter;
    try {
        diameter = parseFieldNumber(state.grid.rows[static_cast<size_t>(state.currentRow)][static_cast<size_t>(state.currentColumn)]);
        if (pipeClass == 1)
            diameter = diameter / 25.4;
    } catch (const NumericFault&) {
        return;
    }
    selectedDiameter = diameter;
    closeRequested = true;
}

void PipeModel::cmdClose_Click()
{
    ChangeNotice notice(*this);
    cancelled = true;
    closeRequested = true;
}

std::string PipeModel::copyText(int firstRow, int firstColumn, int lastRow, int lastColumn) const
{
    const PipeTable& grid = classes[static_cast<size_t>(pipeClass)].grid;
    std::string text;
    for (int r = std::max(firstRow, 0); r <= lastRow && r < static_cast<int>(grid.rows.size()); ++r) {
        for (int c = std::max(firstColumn, 0); c <= lastColumn && c < static_cast<int>(grid.headings.size()); ++c) {
            if (c > firstColumn)
                text += '\t';
            text += grid.rows[static_cast<size_t>(r)][static_cast<size_t>(c)];
        }
        text += "\r\n";
    }
    return text;
}

Single PipeModel::SelectPipeID(const std::string& kind, const std::function<void()>& showModal)
{
    {
        ChangeNotice notice(*this);
        selector = kind;
        cmdSelect.enabled = true;
        cancelled = false;
    }
    showModal();
    if (cancelled)
        return 0.0;
    pipeToolRoughness() = classes[static_cast<size_t>(pipeClass)].roughness;
    return selectedDiameter;
}

void PipeModel::click(const Control& control)
{
    for (int c = 0; c < 2; ++c) {
        if (control.family == pipe_sizes::optMaterial(c, 0).family)
            optMaterial_Click(c, control.index);
        else if (control.family == pipe_sizes::optCondition(c, 0).family)
            optCondition_Click(c, control.index);
    }
    if (control == pipe_sizes::cmdSelect)
        cmdSelect_Click();
    else if (control == pipe_sizes::cmdClose)
        cmdClose_Click();
}

void PipeModel::choose(const Control& list, int entry)
{
    if (list.family == "cboUnits")
        setUnit(list.index, static_cast<UnitIndex>(entry));
    else if (list.family == "lstMaterial")
        lstMaterial_Click(list.index, entry);
    else if (list == pipe_sizes::tabPipeClass)
        tabPipeClass_Click(entry);
}

void PipeModel::doubleClick(const Control& control)
{
    if (control.family == "grdPipeSize")
        grdPipeSize_DblClick();
}

} // namespace kestrova
