// The orifice tool's project file reader (kind 1), opened as File Open opens
// it: a message or the case, never a crash, and no field that reads "nan" or "inf".

#include "fuzz_support.h"

#include "frame/model/shared_stores.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/orifice/model/orifice_model.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrova;
    fuzz::ensureApplication();
    const QString path = fuzz::projectFile(1, data, size);
    resetSharedStores();
    ScriptedUserInterface ui;
    OrificeModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    tool.setStrFileName(path.toStdString());
    tool.OpenSaveData("Open");
    for (const TextControl& field : tool.view().txtData)
        fuzz::requireShowable(field.text, "an orifice field");
    for (const TextControl& display : tool.view().txtDisplay)
        fuzz::requireShowable(display.text, "an orifice display");
    return 0;
}
