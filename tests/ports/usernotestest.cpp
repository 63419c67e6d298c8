#include "ports/usernotes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

#include "fakes/mainfixture.h"
#include "text/singlebyte.h"

namespace tarvane::tests {
namespace {

struct UserNotesTest : LoadedMain {
    Settings& settings = session.settings;
};

TEST_F(UserNotesTest, OpensOnTheRecordsPortWithEveryPortListed) {
    store([](ConfigRecord& record) {
        record.portnumber = 2;
        record.summertimeflag = -1;
    });
    const UserNotes notes = loadusernotes(context);
    ASSERT_EQ(notes.rows.size(), 4U);
    EXPECT_EQ(notes.rows[1], "2  Birch Sound" + std::string(24, ' '));
    EXPECT_EQ(notes.portlabel, "Birch Sound");
    EXPECT_EQ(settings.currentsummer, -1);
    EXPECT_EQ(settings.summerflag2, 0) << "the dates' copy isn't among what this dialog loads";
}

TEST_F(UserNotesTest, AnEnteredDepthAndNoteStandInTheirRecordAlone) {
    UserNotes notes = loadusernotes(context);
    pickusernotes(settings, notes, 2);
    std::string wanted = filetext(settings.depfile);
    EXPECT_TRUE(enterusernotes(context, notes, "-2.5", "Bar dries\nFerry \u20AC5, caf\u00E9"));
    std::string note = tosinglebyte("Bar dries\r\nFerry \u20AC5, caf\u00E9");
    note.resize(longestnote, ' ');
    wanted.replace(2 * userdepthrecordsize + 37, 4, {"\0\0\x20\xC0", 4});
    wanted.replace(2 * userdepthrecordsize + 49, longestnote, note);
    EXPECT_EQ(filetext(settings.depfile), wanted);

    pickusernotes(settings, notes, 3);
    pickusernotes(settings, notes, 2);
    EXPECT_EQ(notes.depth, "-2.5");
    EXPECT_EQ(notes.usernotes, "Bar dries\nFerry \u20AC5, caf\u00E9");
    EXPECT_EQ(settings.userdepth, 0) << "the module's depth isn't touched";
}

TEST_F(UserNotesTest, MetresAreTheLeadingNumberOfTheText) {
    constexpr float most = std::numeric_limits<float>::max();
    const std::pair<std::string, float> rows[] = {
        {"", 0},          {"-", 0},           {"1.2.3", 1.2F},   {"1,5", 1},
        {"-.25", -0.25F}, {"  .75 m", 0.75F}, {"-1e300", -most}, {std::string(400, '9'), most}};
    for (const auto& [typed, metres] : rows)
        EXPECT_EQ(typedmetres(typed), metres) << typed;
}

TEST(AdmittedNoteTest, OnlyWhatTheRecordCanHoldAndWhileThereIsRoom) {
    const std::string full(longestnote, 'x');
    EXPECT_EQ(admittednote(full + "y", 0), full);
    EXPECT_EQ(admittednote("a\nb", 254), "a") << "a line end takes two";
    EXPECT_EQ(admittednote("\u2192t\u00E9\x01\x7F \u20AC\t\U0001F30A!", 0), "t\u00E9 \u20AC\t!");
    EXPECT_EQ(notelength("\u00E9\n\u20AC"), 4U);
}

TEST_F(UserNotesTest, LeavingShowsTheNewDepthWhereTheOutputAsksForIt) {
    for (const float output : {1.0F, 2.0F}) {
        store([&](ConfigRecord& record) { record.outputoption = output; });
        UserNotes notes = loadusernotes(context);
        enterusernotes(context, notes, "0", "");
        closeusernotes(context);
        const double before = session.prediction.curvesamples[60].height;
        session.month.monthspredictions = {"a row"};

        notes = loadusernotes(context);
        enterusernotes(context, notes, "4", "");
        closeusernotes(context);
        EXPECT_NEAR(session.prediction.curvesamples[60].height, before + (output == 1 ? 0 : 4), 1e-6) << output;
        EXPECT_EQ(session.month.monthspredictions.size(), 1U) << "the list is hidden, not emptied";
    }
}

TEST_F(UserNotesTest, AVanishedConfigurationComesBackWithPort73AndWhatCannotBeStoredIsTold) {
    settings.configrec.wayfilepath = "/somewhere/My.way";
    std::filesystem::remove(session.folders.cfgpath());
    UserNotes notes = loadusernotes(context);
    ConfigRecord wanted = defaultconfig(session.folders);
    wanted.portnumber = 73;
    wanted.wayfilepath = "/somewhere/My.way";
    EXPECT_EQ(encode(stored()), encode(wanted));
    const auto before = filetext(settings.depfile);
    scripted.messages.expectshow("There is no port 73 in " + area(), "Tarvane");
    EXPECT_FALSE(enterusernotes(context, notes, "1", "lost"));
    EXPECT_EQ(filetext(settings.depfile), before);

    pickusernotes(settings, notes, 1);
    std::filesystem::remove_all(session.folders.depthsfolder());
    scripted.messages.expectshow("The depth and the note can't be written: " + settings.depfile, "Tarvane");
    EXPECT_FALSE(enterusernotes(context, notes, "1", "lost"));
    std::filesystem::remove_all(session.folders.configfolder());
    scripted.messages.expectshow("The configuration can't be written: " + session.folders.cfgpath(), "Tarvane");
    scripted.messages.expectshow("The file of user depths and notes can't be made: " + settings.depfile, "Tarvane");
    EXPECT_EQ(loadusernotes(context).portnolabel, "73");
}

}  // namespace
}  // namespace tarvane::tests
