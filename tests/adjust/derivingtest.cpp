// Heights entered, a place weighed by distance, and the derived constants saved.
#include <gtest/gtest.h>

#include "adjust/heightentry.h"
#include "adjust/savelocation.h"
#include "adjust/weighting.h"
#include "fakes/mainfixture.h"
#include "portdata/recordfiles.h"
#include "text/numbers.h"

namespace tarvane::tests {
namespace {

const Date today = makedate(2026, 3, 3);

struct Deriving : LoadedMain {
    const ProgramFolders& folders() { return session.folders; }
};

TEST_F(Deriving, EntriesAreClickedChangedAndSavedOverTheOldOnes) {
    EXPECT_EQ(clickedtime({}) + clickedheight({}), "00:000");
    HeightEntries entries;
    EXPECT_EQ(addentry(entries, "", "1"), "No time selected");
    EXPECT_EQ(addentry(entries, "09:00", ""), "No height entered");
    for (int hour = 9; hour < 21; ++hour) {
        const HeightClicks clicks{hour, 1, hour - 8, 3, 5};
        EXPECT_EQ(addentry(entries, clickedtime(clicks), clickedheight(clicks)), "");
    }
    EXPECT_EQ(entries.rows[0], "09:05, 1.35");
    EXPECT_EQ(saveentries(folders(), "  ", entries).message, "No filename chosen");
    EXPECT_NE(saveentries(folders(), "../creek", entries).message, "");
    const HeightsFiled saved = saveentries(folders(), "creek.old.ht", entries);
    EXPECT_EQ(saved.path, folders().programfolder + "/creek.ht");
    EXPECT_EQ(saved.answer, "creek.ht: 12 readings saved");
    const ObservedHeights heights = readheights(saved.path);
    EXPECT_FLOAT_EQ(heights.readings[1].obstime, 10 + 5 / 60.0F);
    EXPECT_FLOAT_EQ(heights.readings[1].obsheight, 2.35F);

    EXPECT_EQ(changeentry(entries, 12, "09:10", "2"), "Select the entry to change");
    EXPECT_EQ(changeentry(entries, 0, "09:10", "2"), "");
    EXPECT_EQ(entryof(entries.rows[1]).clicks.tenths * 10 + entryof(entries.rows[1]).clicks.hundredths, 35);
    entries.rows.resize(9);
    EXPECT_NE(entries.rows, entries.saved);
    EXPECT_EQ(saveentries(folders(), "creek", entries).answer,
              "creek.ht: 9 readings saved; 3 old readings of the file remain behind the list and will be drawn too");
    EXPECT_EQ(openentries(folders(), "creek", entries).answer,
              "creek.ht: 12 readings, joined to those that stood in the list");
    EXPECT_EQ(entries.rows[9] + "|" + entries.rows[20], "09:10, 2|20:05, 12.35");
    EXPECT_EQ(openentries(folders(), "mill", entries).message, "There is no file of heights mill.ht");
}

TEST_F(Deriving, APlaceIsWeighedOnceItIsUnderstood) {
    HarmonicRecord south = fixtureport("Southpoint", 3, "L"), north = fixtureport("Northpoint", 5, "L");
    south.PortLat = 50;
    north.PortLat = 51;
    south.PortLong = north.PortLong = -2;
    south.M2g = 350;
    north.M2g = 10;
    AdjustWorkspace workspace;
    const PlaceTexts lone{"", "50.15.00N", "002.00.00W", ""};
    const auto hasend = [&](const char* end) {
        const PlaceUnderstood understood = understandplace(workspace, lone);
        return understood.good && !understood.weighable && understood.words.ends_with(end);
    };
    EXPECT_TRUE(hasend(": two ports are needed to weigh between.")) << "a place can be kept without ports";
    loadport1(workspace, south);
    EXPECT_EQ(takecirclemeans(workspace), "Two ports are needed: load them first.");
    loadport2(workspace, north);
    EXPECT_EQ(placetexts(workspace).zone, "0");
    const struct {
        PlaceTexts texts;
        const char* words;
    } cases[] = {
        {{"", "50", "002.00.00W", ""}, "Latitude as 50.45.00N"},
        {{"", "50.15.00N", "2W", ""}, "Longitude as 001.30.00W"},
        {{"", "95.15.00N", "002.00.00W", ""}, "There is no such place"},
        {{"", "50.15.00N", "002.00.00W", "13"}, "The zone is a whole number"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(understandplace(workspace, each.texts).words.find(each.words), 0u) << each.words;
    const PlaceUnderstood place = understandplace(workspace, {" Mill Creek ", "50.15.00N", "002.00.00W", "-1"});
    ASSERT_TRUE(place.good && place.weighable);
    EXPECT_EQ(place.place.name + place.place.zoneletter, "Mill CreekM");
    EXPECT_NE(place.words.find("28 km from Southpoint (weight 0.75), 83 km from Northpoint (weight 0.25)"),
              std::string::npos)
        << place.words;
    weighbydistance(workspace, place.place);
    EXPECT_EQ(workspace.boxes[0], "3.500");
    EXPECT_EQ(takecirclemeans(workspace), "Mean on the circle: M2g. Press Calculate.");
    EXPECT_EQ(workspace.boxes[1], "0");
    undoboxes(workspace);
    EXPECT_NEAR(val(workspace.boxes[1]), 355, 0.1);
    HarmonicRecord nowhere = north;
    nowhere.PortLat = nowhere.PortLong = 0;
    loadport2(workspace, nowhere);
    EXPECT_TRUE(hasend(": Northpoint has no position: nothing can be weighed by distance."));
}

TEST_F(Deriving, TheLocationIsSavedBehindOrInPlaceOfAnother) {
    AdjustWorkspace workspace = openworkspace(context);
    for (std::size_t i = 0; i < constantrows.size(); ++i)
        workspace.boxes[i] = numbertext(static_cast<double>(i + 1) / 8);
    const auto said = [&](const SaveChoice& choice) { return savelocation(workspace, session, choice, today).message; };
    EXPECT_EQ(said({" ", "Creek", false, -1, ""}), "Area must have a name");
    EXPECT_EQ(said({"UK", "Creek", true, -1, "UK.hc"}), "Select the location to replace");
    EXPECT_EQ(said({"West", "Creek", true, 0, "UK.hc"}), "The highlighted location is one of UK.hc, not of West.hc");
    EXPECT_NE(said({"a/b", "Creek", false, -1, ""}), "");
    EXPECT_EQ(said({"Scratch.hc", "Creek", false, -1, ""}),
              "scratch.hc is the program's own work file, which is emptied again");
    EXPECT_EQ(savelocation(workspace, session, {"Mine.x", " Creek", false, -1, ""}, today).answer,
              "Mine.hc: 1 port; the new port stands last. Give it its position and zone in Correct Port Constants.");
    const std::string mine = folders().programfolder + "/Mine.hc";
    const HarmonicRecord record = readport(mine, 1);
    EXPECT_EQ(trimmedname(record), "Creek");
    for (std::size_t i = 0; i < constantrows.size(); ++i)
        EXPECT_EQ(record.*constantrows[i].field, static_cast<float>(i + 1) / 8) << constantrows[i].textbox;
    EXPECT_EQ(record.MHm2[11], record.M2Hm);
    EXPECT_EQ(record.DeltaZ0[0], 0);
    const std::vector<std::byte> bytes = readwhole(mine);
    for (const std::size_t zero : {0u, 4u, 40u, 47u, 48u})
        EXPECT_EQ(bytes[zero], std::byte{0}) << "number, position and zone: byte " << zero;
    workspace.place = GivenPlace{"Creek", 50.25, -2, "M"};
    EXPECT_EQ(savelocation(workspace, session, {"Mine", "Mill", true, 0, "Mine.hc"}, today).answer,
              "Mine.hc: 1 port; port 1 is now Mill");
    EXPECT_EQ(readport(mine, 1).PortLat, 50.25F);
    EXPECT_EQ(readport(mine, 1).TimeZoneLetter, "M");
    EXPECT_EQ(workspace.saved, workspace.boxes);
    workspace.boxes[0] = "1e60";
    EXPECT_EQ(said({"Mine", "Mill", false, -1, ""}), "Z0 is too large a number: nothing was saved");
}

TEST_F(Deriving, AnAreaSavedInTheUsersOwnFolderIsTheOneOnShowFromThenOn) {
    session.folders.ownfolder = folder / "own";
    const auto shipped = readwhole(area());
    AdjustWorkspace workspace = openworkspace(context);
    EXPECT_EQ(savelocation(workspace, session, {"UK", "Creek", true, 0, "UK.hc"}, today).message, "");
    EXPECT_EQ(readwhole(area()), shipped);
    EXPECT_EQ(session.settings.hcfile, folder / "own/UK.hc");
    EXPECT_EQ(trimmedname(readport(session.settings.hcfile, 1)), "Creek");
}

}  // namespace
}  // namespace tarvane::tests
