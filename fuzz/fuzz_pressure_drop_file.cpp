// The pressure drop tool's project file reader (kind 2), opened as File Open
// opens it: whatever the bytes, a message or the case, never a crash, and no
// field that reads "nan" or "inf".

#include "fuzz_support.h"

#include "frame/model/shared_stores.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrova;
    fuzz::ensureApplication();
    const QString path = fuzz::projectFile(2, data, size);
    resetSharedStores();
    ScriptedUserInterface ui;
    PressureDropModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    tool.setStrFileName(path.toStdString());
    tool.OpenSaveData("Open");
    for (const TextControl& field : tool.view().txtData)
        fuzz::requireShowable(field.text, "a pressure drop field");
    for (const TextControl& display : tool.view().txtDisplay)
        fuzz::requireShowable(display.text, "a pressure drop display");
    return 0;
}
