// The settings reader: an INI file as a user might have edited it, read by
// the frame at start (placement, units, recent files, company block) and by
// the dialog tools that keep their choices there.

#include "fuzz_support.h"

#include "frame/model/company_info_model.h"
#include "frame/model/frame_model.h"
#include "forms/store/global_units.h"
#include "forms/model/scripted_user_interface.h"
#include "forms/store/settings_store.h"
#include "tools/flow/model/flow_conversions_model.h"
#include "tools/piping/model/pipe_model.h"
#include "tools/piping/model/roughness_model.h"
#include "tools/properties/model/compress_factor_model.h"

#include <cmath>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrova;
    fuzz::ensureApplication();
    SettingsStore store(fuzz::scratchFile("Kestrova.ini", data, size));
    ScriptedUserInterface ui;
    FrameModel frame(ui, store);
    frame.MDIForm_Load();
    const FramePlacement p = frame.placement();
    for (double v : {p.left, p.top, p.width, p.height})
        if (!std::isfinite(v) || std::fabs(v) > 1e6)
            std::abort(); // a placement no screen has
    for (size_t i = 1; i <= frame.recentFiles.entries().size(); ++i)
        (void)frame.recentFiles.menuCaption(static_cast<int>(i));
    CompanyInfoModel company(ui, store);
    company.Form_Load();
    FlowConversionsModel flow(&store);
    flow.Form_Load();
    RoughnessModel roughness(ui, &store);
    roughness.Form_Load();
    CompressFactorModel z(ui, &store);
    z.Form_Load();
    // The pipe sizes tool reads its choices before its data bases: an
    // empty folder keeps the run on the settings.
    PipeModel pipes(ui, &store, fuzz::scratchFolderPath());
    pipes.Form_Load();
    return 0;
}
