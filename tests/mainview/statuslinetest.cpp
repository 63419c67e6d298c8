#include "session/statusline.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/mainfixture.h"
#include "mainview/layersview.h"
#include "mainview/monthcommand.h"
#include "mainview/readouts.h"
#include "mainview/stepping.h"
#include "ports/programsettings.h"
#include "ports/usernotes.h"
#include "session/refresh.h"

namespace tarvane::tests {
namespace {

struct StatusLine : LoadedMain {
    StatusLine() { storedepth(2, -2); }  // port 2, zone M, is the one that the traps lead to

    std::string line() {
        refreshstatus(context);
        return session.view.statusline;
    }

    std::string notes() {
        std::string all;
        for (const std::string& note : statusnotes(session, scripted.locale))
            all += note + "|";
        return all;
    }
};

TEST_F(StatusLine, TellsThePredictionAndNothingElse) {
    EXPECT_EQ(line(), "Tides of Alder Quay (1), Tuesday 9 April 2024, UT, heights above chart datum");
    session.settings.summerflag2 = session.settings.currentsummer = -1;
    nextport(context);
    const std::string told =
        "Tides of Birch Sound (2), Tuesday 9 April 2024, UT+2 (summer time), heights over your depth of -2.0 m";
    EXPECT_EQ(line(), told);
    // Whatever the screen and the settings say from here on.
    session.port.portname = "Elsewhere";
    session.view.tidedatebox = "Date   : never";
    session.settings.currentoutput = 1;
    session.onshow = {};
    EXPECT_EQ(line(), told);
}

TEST_F(StatusLine, TellsWhatTheClocksThereReadAndAnotherDatum) {
    replacefile(session.folders.programfolder + "/uk-about.csv",
                std::string("number,name,country,timezone,datum,record_from,record_to,licence,source,"
                            "time_error_median_min,time_error_p90_min,height_error_median_m,height_error_p90_m,"
                            "mean_range_m\n1,Alder Quay,US,Africa/Lagos,MLLW,,,,,1,1,1,1,1\n"));
    load();
    EXPECT_EQ(line(), "Tides of Alder Quay (1), Tuesday 9 April 2024, UT, heights above chart datum (MLLW)");
    EXPECT_EQ(notes(), "clocks there read one hour more (WAT)|");
    session.settings.summerflag2 = session.settings.currentsummer = -1;
    refreshday(context);
    EXPECT_EQ(line(),
              "Tides of Alder Quay (1), Tuesday 9 April 2024, UT+1 (summer time), heights above chart datum (MLLW)");
    EXPECT_EQ(notes().find("clocks"), std::string::npos);
}

TEST_F(StatusLine, ADayWithoutTidesSaysWhy) {
    scripted.clock.reading.today = makedate(1990, 1, 2);
    load();
    EXPECT_EQ(line(), "No tides of Alder Quay (1), Tuesday 2 January 1990: The method has no constants for this day");
    std::filesystem::remove(area());
    load();
    EXPECT_EQ(line(),
              "No tides of port 1 (not in the sea area), Tuesday 2 January 1990: The sea area's file can't be found");
    EXPECT_NE(ScriptedSurface::log(picture.persistentlayer).find("Sea Area, or put it back"), std::string::npos);
}

TEST_F(StatusLine, TellsAnAreaOfTheUsersOwn) {
    session.folders.ownfolder = folder / "own";
    const std::string shipped = line();
    const WritableFile own = datafiletowrite(session.folders, "UK.hc");
    EXPECT_EQ(line(), shipped) << "the prediction is still of the other";
    session.settings.hcfile = own.path;
    refreshday(context);
    EXPECT_EQ(line(), shipped + ", your own UK.hc");
    EXPECT_EQ(notes(), "");
    putfile(area(), "an upgrade's");
    session.settings.hcfile = area();
    refreshday(context);
    EXPECT_EQ(line().find("own UK.hc"), std::string::npos);
    session.settings.hcfile = own.path;
    refreshday(context);
    EXPECT_EQ(line(), shipped + ", your own UK.hc");
    EXPECT_EQ(notes(), "your UK.hc was made of an older one than the program's now|");
}

TEST_F(StatusLine, NotesADepthThatWasEnteredForAnother) {
    UserDepthRecord record = readdepth(session.settings.depfile, 2);
    record.DepthPortName = "Lerwick";
    writedepth(session.settings.depfile, 2, record);
    session.settings.currentport = 2;
    takecurrentport(session, true);
    for (const auto& [output, depth] : {std::pair{3.0F, -2.0F}, {1.0F, -2.0F}, {3.0F, 0.0F}}) {
        record.UserDepth = depth;
        writedepth(session.settings.depfile, 2, record);
        session.settings.currentoutput = output;
        refreshday(context);
        const bool included = output != 1 && depth != 0;
        EXPECT_EQ(notes().find("the depth of -2.0 m stands under the name of Lerwick|") != std::string::npos, included);
    }
}

TEST_F(StatusLine, NotesEachTrap) {
    EXPECT_EQ(notes(), "");
    nextday(context);
    EXPECT_EQ(notes(), "copies are dated 9/4/2024|the sun's lines are of 9/4/2024|");
    session.onshow.tidedate = makedate(2024, 5, 1);
    session.onshow.tidemonth = 5;
    previousday(context);
    EXPECT_EQ(line().substr(0, 46), "Tides of Alder Quay (1), Tuesday 30 April 2024");
    EXPECT_NE(notes().find("the month's corrections are those of May|"), std::string::npos);
}

TEST_F(StatusLine, NotesAnotherPortsNameAndSun) {
    UserNotes shown = loadusernotes(context);
    pickandnameport(session, shown, 2);
    EXPECT_EQ(notes(), "copies and files are named Cedar Head|");
    closeusernotes(context);
    EXPECT_EQ(line().substr(0, 24), "Tides of Alder Quay (1),");
    EXPECT_EQ(notes(), "the name above is another port's|");
    nextport(context);
    EXPECT_EQ(notes(), "the sun's lines are another port's|") << "those of the port left";
    redrawday(context);
    EXPECT_EQ(notes(), "");
    session.sundrawn.summer = -1;
    EXPECT_EQ(notes(), "the sun's lines are an hour off|");
    session.sundrawn.latitude = 1;
    EXPECT_EQ(notes(), "the sun's lines are another port's|");
}

TEST_F(StatusLine, NotesSettingsNotYetInTheHeights) {
    nextport(context);
    redrawday(context);
    ProgramOptions options = openoptions(session);
    EXPECT_EQ(session.settings.currentport, 1) << "the settings go back to the port left";
    chooseoutput(session, options, 1);
    EXPECT_EQ(notes(), "these heights are not yet those of the settings|");
    EXPECT_EQ(line().substr(0, 25), "Tides of Birch Sound (2),");
    confirmoptions(context, options);
    EXPECT_EQ(line().substr(0, 24), "Tides of Alder Quay (1),");
    EXPECT_EQ(notes(), "the name above is another port's|the sun's lines are another port's|");
}

TEST_F(StatusLine, NotesTextsThatNameTheTimeByTheMonth) {
    session.settings.summerflag2 = session.settings.currentsummer = -1;
    using Row = std::pair<Date, const char*>;
    for (const auto& [date, note] :
         {Row{makedate(2024, 3, 30), ""}, Row{makedate(2024, 3, 31), "texts call these times Standard Time|"},
          Row{makedate(2024, 10, 26), ""}, Row{makedate(2024, 10, 27), "texts call these times Summer Time|"}}) {
        setdateonshow(session.onshow, date);
        refreshday(context);
        redrawday(context);
        EXPECT_EQ(notes(), note) << line();
    }
}

TEST_F(StatusLine, NotesAMonthListOfSomethingElse) {
    const auto listnote = [&] {
        const std::string all = notes();
        const std::size_t at = all.find("the month list");
        return at == std::string::npos ? "" : all.substr(at, all.find('|', at) - at);
    };
    calculatemonth(context);
    EXPECT_EQ(listnote(), "");
    setdateonshow(session.onshow, makedate(2024, 5, 1));
    refreshday(context);
    EXPECT_EQ(listnote(), "the month list is of April 2024");
    session.settings.currentport = 3;
    refreshday(context);
    EXPECT_EQ(listnote(), "the month list is Alder Quay's");
    session.settings.currentport = 1;
    setdateonshow(session.onshow, makedate(2024, 3, 30));
    session.settings.summerflag2 = -1;
    calculatemonth(context);
    EXPECT_EQ(listnote(), "the month list keeps one hour for all its days");
    nextday(context);
    EXPECT_EQ(listnote(), "the month list is an hour off");
    session.settings.currentport = 2;
    calculatemonth(context);
    session.settings.currentoutput = 1;
    refreshday(context);
    EXPECT_EQ(listnote(), "the month list has other heights");
    session.month.made.hcfile = "another area";
    EXPECT_EQ(listnote(), "the month list is Alder Quay's");
}

TEST_F(StatusLine, NotesContributionsOfAnEarlierCurve) {
    togglelayers(context);
    picturemousemove(session, picture, 6);
    EXPECT_EQ(notes().find("contributions"), std::string::npos);
    nextday(context);
    EXPECT_NE(notes().find("the contributions are an earlier curve's|"), std::string::npos);
    picturemousemove(session, picture, 6);
    EXPECT_EQ(notes().find("contributions"), std::string::npos);
    session.layersarea = "another";
    EXPECT_NE(notes().find("the contributions are an earlier curve's|"), std::string::npos);
    nextport(context);
    picturemousemove(session, picture, 6);
    EXPECT_NE(notes().find("Height and Sum leave your depth out|"), std::string::npos) << notes();
    EXPECT_EQ(notes().find("contributions"), std::string::npos);
}

}  // namespace
}  // namespace tarvane::tests
