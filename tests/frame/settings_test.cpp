#include "frame/model/company_info_model.h"
#include "frame/model/frame_model.h"
#include "forms/store/global_units.h"
#include "frame/model/recent_files.h"
#include "forms/model/scripted_user_interface.h"
#include "forms/store/settings_store.h"
#include "tools/piping/model/roughness_model.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace kestrova;

class SettingsTest : public testing::Test {
protected:
    SettingsTest() : store(dir.filePath("Kestrova.ini")) {}
    QTemporaryDir dir;
    SettingsStore store;
};

TEST_F(SettingsTest, AnEmptyStoreGivesEveryDefault)
{
    EXPECT_EQ(store.get("Settings", "DataBaseLocation", "default"), "default");
    EXPECT_EQ(store.getInteger("Settings", "PipeClass", 0), 0);
    GlobalUnits units;
    units.load(store);
    EXPECT_EQ(units[Quantity::SurfaceTension], 1);
    EXPECT_EQ(units[Quantity::Roughness], 1);
    EXPECT_EQ(units[Quantity::Velocity], 1);
    EXPECT_EQ(units[Quantity::Length], 1);
    EXPECT_EQ(units[Quantity::Temperature], 0);
}

TEST_F(SettingsTest, KeysAreKeptBySectionAndRemovedQuietly)
{
    store.save("Settings", "Disclaimer Show", "False");
    store.sync();
    SettingsStore again(dir.filePath("Kestrova.ini"));
    EXPECT_EQ(again.get("Settings", "Disclaimer Show", "True"), "False");
    again.remove("Settings", "Disclaimer Show");
    again.remove("Settings", "No Such Key");
    EXPECT_EQ(again.get("Settings", "Disclaimer Show", "True"), "True");
}

TEST_F(SettingsTest, HeatCapacityHeadAndPowerUnitsAreWrittenButNotRead)
{
    GlobalUnits units;
    units[Quantity::HeatCapacity] = 2;
    units[Quantity::Head] = 1;
    units[Quantity::Pressure] = 5;
    units.save(store);
    EXPECT_EQ(store.get("Units", "CPUnits", ""), "2");
    GlobalUnits loaded;
    loaded.load(store);
    EXPECT_EQ(loaded[Quantity::Pressure], 5);
    EXPECT_EQ(loaded[Quantity::HeatCapacity], 0);
    EXPECT_EQ(loaded[Quantity::Head], 0);
}

TEST_F(SettingsTest, RecentFilesMoveToTheTopAndOnlyFourAreRead)
{
    RecentFiles recent;
    for (int i = 1; i <= 6; ++i)
        recent.add("f" + std::to_string(i) + ".ksv", "/p/f" + std::to_string(i) + ".ksv", store);
    EXPECT_EQ(recent.entries().size(), 6u);
    EXPECT_EQ(recent.entries().front().title, "f6.ksv");
    EXPECT_EQ(recent.menuCaption(1), "&1 f6.ksv");
    recent.add("f3.ksv", "/p/f3.ksv", store); // re-opening moves it up
    EXPECT_EQ(recent.entries().size(), 6u);
    EXPECT_EQ(recent.entries()[0].path, "/p/f3.ksv");
    EXPECT_EQ(recent.entries()[3].path, "/p/f4.ksv");

    RecentFiles next;
    next.load(store);
    ASSERT_EQ(next.entries().size(), 4u);
    EXPECT_EQ(next.entries()[0].title, "f3.ksv");
    EXPECT_EQ(store.get("MRU", "File1", ""), "/p/f3.ksv");
}

TEST_F(SettingsTest, LoadingStopsAtTheFirstEmptyTitle)
{
    store.save("MRU", "Title1", "a.ksv");
    store.save("MRU", "File1", "/a.ksv");
    store.save("MRU", "Title3", "c.ksv");
    store.save("MRU", "File3", "/c.ksv");
    RecentFiles recent;
    recent.load(store);
    ASSERT_EQ(recent.entries().size(), 1u);
    recent.save(store); // places beyond the list are removed
    EXPECT_EQ(store.get("MRU", "Title3", "gone"), "gone");
}

TEST_F(SettingsTest, CompanyBlockIsSavedOnlyWhenTheUserSaysYes)
{
    store.save("Settings", "City", "Leeds");
    ScriptedUserInterface ui;
    CompanyInfoModel form(ui, store);
    form.Form_Load();
    EXPECT_EQ(form.text[2], "Leeds");
    EXPECT_EQ(form.text[0], "");
    form.text[0] = "Hydro Works";
    form.text[4] = "LS1 4AP";

    ui.answers = {MessageAnswer::Cancel}; // the form stays open, nothing written
    EXPECT_FALSE(form.Form_QueryUnload());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, "Company Information");
    EXPECT_EQ(ui.messages[0].text, "Save changes?");
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(store.get("Settings", "Company", ""), "");

    ui.answers = {MessageAnswer::No};
    EXPECT_TRUE(form.Form_QueryUnload());
    EXPECT_EQ(store.get("Settings", "Company", ""), "");

    ui.answers = {MessageAnswer::Yes};
    EXPECT_TRUE(form.Form_QueryUnload());
    SettingsStore again(dir.filePath("Kestrova.ini"));
    EXPECT_EQ(again.get("Settings", "Company", ""), "Hydro Works");
    EXPECT_EQ(again.get("Settings", "Zip", ""), "LS1 4AP");
    EXPECT_EQ(again.get("Settings", "City", ""), "Leeds");
    EXPECT_EQ(again.get("Settings", "Country", "unset"), ""); // every key written, empty ones too
}

TEST_F(SettingsTest, ValuesOutOfRangeOrUnreadableFallBackToTheirDefaults)
{
    // A store edited by hand never stops a start: the placement beyond any
    // screen, unit indices beyond their lists and option indices beyond their
    // options each give the default; the sound keys are still read.
    store.save("Settings", "MainLeft", "1e39");
    store.save("Settings", "MainTop", "north");
    store.save("Settings", "MainWidth", "-6500");
    store.save("Settings", "MainHeight", "3e38");
    ScriptedUserInterface ui;
    FrameModel frame(ui, store);
    const FramePlacement placement = frame.placement();
    EXPECT_EQ(placement.left, 1000);
    EXPECT_EQ(placement.top, 1000);
    EXPECT_EQ(placement.width, 6500);
    EXPECT_EQ(placement.height, 6500);
    store.save("Settings", "MainWidth", "9,000");
    EXPECT_EQ(frame.placement().width, 9000);

    store.save("Units", "TUnits", "4");     // four temperature units: 0 to 3
    store.save("Units", "PUnits", "-1");
    store.save("Units", "STUnits", "99999999999");
    store.save("Units", "DUnits", "2.5");
    store.save("Units", "FlowUnits", "5"); // kg/s, the last flow unit
    GlobalUnits units;
    units.load(store);
    EXPECT_EQ(units[Quantity::Temperature], 0);
    EXPECT_EQ(units[Quantity::Pressure], 0);
    EXPECT_EQ(units[Quantity::SurfaceTension], 1);
    EXPECT_EQ(units[Quantity::Density], 0);
    EXPECT_EQ(units[Quantity::Flow], 5);

    EXPECT_EQ(store.getIndex("Settings", "EOSOption", 0, 3), 0);
    store.save("Settings", "EOSOption", "3");
    EXPECT_EQ(store.getIndex("Settings", "EOSOption", 0, 3), 0);
    store.save("Settings", "EOSOption", "2");
    EXPECT_EQ(store.getIndex("Settings", "EOSOption", 0, 3), 2);
    store.save("Settings", "PipeRoughness", "9");
    RoughnessModel roughness(ui, &store);
    roughness.Form_Load();
    EXPECT_EQ(roughness.view().material, 0);
}

TEST_F(SettingsTest, ASettingsFileThatCannotBeWrittenIsReportedOnceAndKeepsItsOldContent)
{
    store.save("Settings", "Company", "Hydro Works");
    ScriptedUserInterface ui;
    FrameModel frame(ui, store);
    frame.MDIForm_Load();
    // The store's folder turns into one where no file can be made: the
    // settings file is replaced by a folder of the same name.
    QFile::remove(store.fileName());
    ASSERT_TRUE(QDir().mkdir(store.fileName()));
    store.save("Settings", "City", "Leeds");
    store.save("Settings", "Zip", "LS1 4AP");
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Warning);
    EXPECT_NE(ui.messages[0].text.find("could not be written to " + store.fileName().toStdString()), std::string::npos);
    // The values stay for the run.
    EXPECT_EQ(store.get("Settings", "City", ""), "Leeds");
}
