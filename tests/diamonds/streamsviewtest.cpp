#include "diamonds/streamsview.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

#include "diamonds/diamondofstreams.h"
#include "fakes/mainfixture.h"

namespace tarvane::tests {
namespace {

struct Streams : LoadedMain {
    const std::string program = session.folders.programfolder + "/";

    StreamsView opened() {
        putdiamonds(program + "solent.l20", {rounddiamond(), rounddiamond("é")});
        putdiamonds(program + "needles.L30", {rounddiamond("B")});
        return openstreams(context);
    }
};

TEST_F(Streams, OpensOnTheSessionsPortAndDate) {
    const StreamsView view = opened();
    EXPECT_EQ(view.files, (std::vector<std::string>{"solent.l20", "needles.L30"}));
    EXPECT_EQ(view.diamonds, (std::vector<std::string>{"A   50.45N   1.30W", "é   50.45N   1.30W"}));
    EXPECT_EQ(view.ports.at(static_cast<std::size_t>(view.port)), "Alder Quay");
    EXPECT_EQ(view.about,
              "Diamond A   50.45N   1.30W. Tides of Alder Quay (1), Tuesday 9 April 2024, UT, heights above "
              "chart datum");
    EXPECT_TRUE(
        view.note.starts_with("Range of the day 4.87 m, beyond the mean spring range of 4.00 m: rates are "
                              "extrapolated. Streams are means over an hour"))
        << view.note;
    const auto rows = streamtable(context, view);
    ASSERT_EQ(rows.size(), 26U);
    EXPECT_EQ(rows[0], (std::vector<std::string>{"04:40", "-6", "22:40 (Mon 8 Apr)", "010", "1.95", "springs"}));
    EXPECT_EQ(streamsentence(view, 6), "High water, 04:40: 130 degrees, rate 3.87 (springs 3.0, neaps 1.0)");
    EXPECT_EQ(streamsentence(view, 25), "HW +6, 23:00: 250 degrees, rate 1.95 (springs 1.6, neaps 0.8)");
    EXPECT_EQ(streamsentence(view, 26) + streamsentence(view, -1), "");
}

TEST_F(Streams, FollowEachChoiceAndTheSummerOption) {
    StreamsView view = opened();
    session.settings.summerflag2 = -1;
    choosestreamport(context, view, 1);  // zone M
    EXPECT_NE(view.about.find("Birch Sound (2), Tuesday 9 April 2024, UT+2 (summer time)"), std::string::npos);
    choosestreamdate(context, view, makedate(2024, 1, 2));
    EXPECT_TRUE(
        view.note.starts_with("Range of the day 2.78 m, between the mean neap range of 2.00 m and the mean "
                              "spring range of 4.00 m. "));
    choosestreamdate(context, view, makedate(2024, 1, 6));
    EXPECT_NE(view.note.find("below the mean neap range of 2.00 m: rates are extrapolated."), std::string::npos);
    choosestreamdate(context, view, makedate(1990, 1, 1));
    EXPECT_EQ(view.note, "The method has no constants for this day");
    EXPECT_TRUE(streamtable(context, view).empty());
    choosestreamdate(context, view, makedate(10000, 1, 1));
    EXPECT_EQ(view.date, makedate(9999, 12, 31));
    choosediamond(context, view, 1);
    EXPECT_TRUE(view.about.starts_with("Diamond é "));
    choosestreamfile(context, view, 1);
    EXPECT_TRUE(view.about.starts_with("Diamond B "));
}

TEST_F(Streams, WhatIsMissingIsToldInWords) {
    StreamsView view = openstreams(context);
    EXPECT_TRUE(view.note.starts_with("There is no tidal diamond file (.l20, .l30 or .l40). One is made with "));
    EXPECT_TRUE(view.note.ends_with(" A file from elsewhere goes into " + session.folders.programfolder + "."));
    session.folders.ownfolder = folder / "own";
    EXPECT_TRUE(openstreams(context).note.ends_with(folder / "own."));
    session.folders.ownfolder.clear();
    view = opened();
    std::filesystem::remove(program + "solent.l20");
    choosestreamfile(context, view, 0);
    EXPECT_EQ(view.note, "The file " + program + "solent.l20 can't be read: No such file or directory");
    choosestreamport(context, view, 0);
    EXPECT_EQ(view.diamonds.size(), 0U);
    DiamondRecord broken = rounddiamond();
    broken.streams[0].SpringRate = std::numeric_limits<float>::quiet_NaN();
    putdiamonds(program + "solent.l20", {broken});
    choosestreamfile(context, view, 0);
    EXPECT_TRUE(view.note.ends_with("approximate. The file has directions or rates that are no numbers."));
    putfile(program + "solent.l20", "short");
    choosestreamfile(context, view, 0);
    EXPECT_EQ(view.note, "The file holds no diamond.");
    session.settings.currentport = 9;
    EXPECT_EQ(opened().note, "Choose a reference port.");
    std::filesystem::remove(area());
    EXPECT_EQ(opened().note, "The sea area's file can't be found: " + area());
}

TEST_F(Streams, CopiedWithTabsAndSavedAsTheTableForPrograms) {
    const StreamsView view = opened();
    copystreams(context, view);
    const std::string& copied = scripted.clipboard.contents;
    EXPECT_TRUE(copied.starts_with(view.about + "\r\n" + view.note +
                                   "\r\n\r\nHigh water\tHour\tTime\tDirection\tRate\t"
                                   "Beyond\r\n04:40\t-6\t22:40 (Mon 8 Apr)\t010\t"));
    EXPECT_TRUE(copied.ends_with("17:00\t+6\t23:00\t250\t1.95\tsprings\r\n"));
    EXPECT_EQ(session.view.answer, "Copied: the day's streams");
    const std::string path = folder / "streams.csv";
    scripted.filedialogs.expectsave(path, "Save Streams To CSV File");
    savestreams(context, view);
    EXPECT_EQ(scripted.filedialogs.requests[0].filename, "Diamond A Alder Quay 2024-04-09.csv");
    EXPECT_TRUE(
        filetext(path).starts_with("highwater,hour,moment,direction,rate,beyond\n2024-04-09T04:40+00:00,-6,"
                                   "2024-04-08T22:40+00:00,10,1.95,springs\n"));
    EXPECT_EQ(session.view.answer, "Saved: " + path);
    scripted.filedialogs.expectsave(std::nullopt);
    savestreams(context, view);
}

}  // namespace
}  // namespace tarvane::tests
