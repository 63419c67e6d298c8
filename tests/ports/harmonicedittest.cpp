#include "ports/harmonicedit.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>

#include "fakes/mainfixture.h"
#include "files/wholefiles.h"
#include "portdata/ownports.h"
#include "session/refresh.h"

namespace tarvane::tests {
namespace {

/// The number boxes in the order in which their fields lie in the file, four bytes each from 49.
constexpr const char* ondisk[] = {
    "txtz0",     "txtm2g",    "txtm2hm",   "txts2g",    "txts2hm",   "txtk1g",    "txtk1hm",   "txto1g",
    "txto1hm",   "txtsf4",    "txtlf4",    "txtsf6",    "txtlf6",    "txtjandz0", "txtfebdz0", "txtmardz0",
    "txtaprdz0", "txtmaydz0", "txtjundz0", "txtjuldz0", "txtaugdz0", "txtsepdz0", "txtoctdz0", "txtnovdz0",
    "txtdecdz0", "txtjanm2",  "txtfebm2",  "txtmarm2",  "txtaprm2",  "txtmaym2",  "txtjunm2",  "txtjulm2",
    "txtaugm2",  "txtsepm2",  "txtoctm2",  "txtnovm2",  "txtdecm2"};

TEST(PortBoxes, EachBoxHasItsField) {
    HarmonicRecord port;
    port.PortNo = "  12a";
    port.PortName = "Lerwick" + std::string(28, ' ');
    port.PortLat = 50.75F;
    port.PortLong = -1.5F;
    port.TimeZoneLetter = "P";
    auto bytes = encode(port);
    std::size_t offset = 49;
    for (std::size_t i = 0; i < std::size(ondisk); ++i, offset += 4) {
        const float value = static_cast<float>(offset) / -8;
        std::memcpy(bytes.data() + offset, &value, 4);
    }
    const BoxTexts texts = boxtexts(decodeharmonic(bytes));
    ASSERT_EQ(texts.size(), std::size(ondisk) + 5);
    EXPECT_EQ(texts[boxplace("txtportno")], "12a");
    EXPECT_EQ(texts[boxplace("txtportname")], "Lerwick");
    EXPECT_EQ(texts[boxplace("txtportlat")] + texts[boxplace("txtportlong")], "50.45.00N001.30.00W");
    EXPECT_EQ(texts[boxplace("txtTimeZone")], "-4");
    EXPECT_EQ(texts[boxplace("txtz0")], "-6.125");
    EXPECT_EQ(texts[boxplace("txtjandz0")], "-12.625");
    port.PortNo = "12a";
    std::memcpy(bytes.data(), encode(port).data(), 5);
    EXPECT_EQ(encode(recordof(texts)), bytes);
}

TEST(PortBoxes, WhatIsTypedIsReadAsTold) {
    BoxTexts texts(portboxes().size());
    const auto put = [&](const char* box, const std::string& text) { texts[boxplace(box)] = text; };
    for (const auto& [hours, letter] : {std::pair{"-11", "W"}, {"-9", "U"}, {"1.5", "L"}, {"", "L"}, {"+2", "J"}}) {
        put("txtTimeZone", hours);
        EXPECT_EQ(recordof(texts).TimeZoneLetter, letter) << hours;
    }
    put("txtm2g", "g12");
    put("txtdecm2", ".5-");
    EXPECT_EQ(recordof(texts).M2g, 0);
    EXPECT_EQ(recordof(texts).MHm2[11], 0.5F);
    const struct {
        const char* box;
        std::string fits, wrong;
        const char* fault;
    } rows[] = {
        {"txtportno", " 12345 ", "123456", "\"Number\" has room for 5 characters"},
        {"txtportname", "\u20AC5 caf\u00E9", std::string(36, 'x'), "\"Name\" has room for 35 characters"},
        {"txtportname", "", "\u0394", "\"Name\" holds characters that an area file can't hold"},
        {"txtportlong", "179.59.99W", std::string(39, '4'), "\"Longitude\" is too large for an area file: "},
        {"txtjunm2", "-1", std::string(400, '9'), "\"M2 amplitude in June, metres\" is too large for an area file: "},
    };
    for (const auto& row : rows) {
        put(row.box, row.wrong);
        EXPECT_TRUE(boxfault(texts).starts_with(row.fault)) << boxfault(texts);
        put(row.box, row.fits);
        EXPECT_EQ(boxfault(texts), "");
    }
}

TEST(PortBoxes, EachKindTakesItsKeys) {
    const struct {
        BoxKind kind;
        std::u32string kept, turned;
    } rows[] = {{BoxKind::zone, U"0123456789.-+\b", U",."},
                {BoxKind::latitude, U"0123456789.NS\b", U"sS"},
                {BoxKind::longitude, U"0123456789.EW\b", U"eE"}};
    for (const auto& row : rows) {
        for (char32_t key = 1; key < 256; ++key)
            EXPECT_EQ(boxkey(row.kind)(key) == key, row.kept.find(key) != std::u32string::npos) << unsigned{key};
        EXPECT_EQ(boxkey(row.kind)(row.turned[0]), row.turned[1]);
    }
    EXPECT_EQ(boxkey(BoxKind::number), boxkey(BoxKind::zone));
}

class HarmonicEditTest : public testing::Test, protected MainFixture {
  protected:
    HarmonicEditTest() {
        load();
        edit = openeditor(session);
    }
    void type(const char* box, const std::string& text) { edit.texts[boxplace(box)] = text; }
    void expecttold(const std::string& text) {
        scripted.messages.expectshow(text, "Tarvane", MessageIcon::exclamation);
    }
    /// The first letters of the ports' names.
    std::string names(const std::string& path) const {
        std::string letters;
        for (const HarmonicRecord& port : readports(path))
            letters += port.PortName.front();
        return letters;
    }
    void typenewport() {
        type("txtportname", "Nab");
        type("txtportlat", "50.40.00N");
        type("txtportlong", "000.57.00W");
    }

    HarmonicEdit edit;
};

TEST_F(HarmonicEditTest, WhatIsMissingIsToldInTheToldOrderAndNothingIsWritten) {
    using Command = bool (*)(MainContext&, HarmonicEdit&);
    const std::vector<Command> all{acceptchanges, addnewport, insertnewport, deletehighlighted};
    /// What each command tells; nothing: it isn't tried.
    const auto refused = [&](const std::vector<std::string>& told) {
        for (std::size_t i = 0; i < told.size(); ++i) {
            if (told[i].empty()) continue;
            scripted.messages.expectshow(told[i], told[i].starts_with("Select") ? "" : "Tarvane");
            EXPECT_FALSE(all[i](context, edit)) << told[i];
        }
    };
    const auto before = readwhole(area());
    const std::string select = "Select an existing area from the File -> Area Select Menu!!";
    const std::string choose = "Choose the area to edit first. Nothing was written.";
    refused({select, select, choose, choose});
    ASSERT_TRUE(pickarea(context, edit, "UK.hc"));
    EXPECT_EQ(edit.status, "UK.hc: 4 ports");
    const std::string highlight = "No port is highlighted in the list of UK.hc. Nothing was written.";
    const std::string latitude = "Error - Latitude entry", name = "Error - No port selected";
    type("txtportlat", "00.00.00N");
    refused({latitude, latitude, highlight, highlight});
    type("txtportlat", "50.30.00N");
    type("txtportname", "  ");
    refused({name, name});
    ASSERT_TRUE(pickport(context, edit, 1));
    type("txtportlat", "");
    refused({latitude, latitude, latitude});
    EXPECT_EQ(session.settings.currentport, 2) << "an insertion that is refused has set it";
    type("txtportlat", "50.30.00N");
    type("txtz0", std::string(39, '9'));
    const std::string large =
        "\"Mean level Z0 (metres)\" is too large for an area file: " + std::string(39, '9') + ". Nothing was written.";
    refused({large, large, large});
    type("txtz0", "1");
    edit.listindex = 4;
    const std::string gone = "There is no port 5 in UK.hc any more. Choose the area anew. Nothing was written.";
    refused({gone, "", gone, gone});
    EXPECT_EQ(readwhole(area()), before);
    std::filesystem::rename(area(), folder / "away");
    const std::string unread = "The area file can't be read: " + area() + ". Nothing was written.";
    refused({unread, unread, unread, unread});
    EXPECT_FALSE(canopen(area()));
    expecttold("There is no port 1 to be read in " + area());
    EXPECT_FALSE(pickport(context, edit, 0));
    EXPECT_EQ(edit.listindex, -1);
    expecttold("The area file can't be read: " + area());
    EXPECT_FALSE(pickarea(context, edit, "UK.hc"));
    EXPECT_EQ(edit.editfilename + edit.editfilepath, "");
}

TEST_F(HarmonicEditTest, EachCommandWritesAsToldAndSaysWhatTheFileHolds) {
    std::filesystem::remove(session.settings.depfile);
    const std::string kept = names(area());
    pickarea(context, edit, "UK.hc");
    pickport(context, edit, 1);
    typenewport();
    EXPECT_TRUE(acceptchanges(context, edit));
    EXPECT_EQ(edit.status, "UK.hc: 4 ports; port 2 was changed");
    EXPECT_EQ(names(area()), "ANCA");
    EXPECT_EQ(edit.portlist[1], "Birch Sound");
    EXPECT_EQ(session.port.portlat, static_cast<float>(50 + 40 / 60.0)) << "the port on show has moved there";
    EXPECT_EQ(session.port.portlong, static_cast<float>(-57 / 60.0));
    EXPECT_FALSE(unaccepted(edit));

    EXPECT_TRUE(addnewport(context, edit));
    EXPECT_EQ(edit.status, "UK.hc: 5 ports; the new port stands last");
    EXPECT_EQ(names(area()), "ANCAN");
    EXPECT_EQ(edit.portlist.back(), "Nab");
    EXPECT_EQ(edit.listindex, -1);

    pickport(context, edit, 2);
    type("txtportname", "Xanthe");
    EXPECT_TRUE(insertnewport(context, edit));
    EXPECT_EQ(edit.status, "UK.hc: 6 ports, Cedar Head twice; the new port was not kept: use Add Port");
    EXPECT_EQ(names(area()), "ANCCAN");
    EXPECT_TRUE(unaccepted(edit)) << "what was typed stands nowhere";
    EXPECT_EQ(session.settings.currentport, 3);
    edit.listindex = 5;
    EXPECT_TRUE(insertnewport(context, edit));
    EXPECT_EQ(edit.status, "UK.hc: 8 ports, Nab twice; the new port stands last");
    EXPECT_EQ(names(area()), "ANCCANNX");
    EXPECT_FALSE(unaccepted(edit));

    writedepth(session.settings.depfile, 1, {});
    pickport(context, edit, 4);
    EXPECT_TRUE(deletehighlighted(context, edit));
    EXPECT_TRUE(edit.status.starts_with("UK.hc: 7 ports; Alder Quay was deleted\nThe depths and notes of this area"));
    EXPECT_EQ(names(area()), "ANCCNNX");
    EXPECT_EQ(session.settings.currentport, 5);
    EXPECT_EQ(names(session.folders.programfolder + "/scratch.hc"), "ANCCNNX");
    EXPECT_EQ(names(area() + ".bak"), kept);
}

TEST_F(HarmonicEditTest, EachPortThatIsTheUsersOwnIsNotedAsHis) {
    const auto how = [&](std::int16_t number) {
        const AreaNotes notes = areanotes(session.folders, area());
        const OwnMade* made = madeof(notes, readport(area(), number));
        return made ? static_cast<int>(made->how) : -1;
    };
    pickarea(context, edit, "UK.hc");
    pickport(context, edit, 1);
    EXPECT_TRUE(acceptchanges(context, edit));
    EXPECT_TRUE(areanotes(session.folders, area()).empty()) << "nothing was changed";
    type("txtm2hm", "2");
    EXPECT_TRUE(acceptchanges(context, edit));
    EXPECT_EQ(how(2), static_cast<int>(OwnHow::corrected));
    EXPECT_EQ(areanotes(session.folders, area()).at(0).made->date, "2024-04-09");
    typenewport();
    EXPECT_TRUE(addnewport(context, edit));
    EXPECT_EQ(how(5), static_cast<int>(OwnHow::entered));
    EXPECT_EQ(how(1), -1);
    pickport(context, edit, 0);
    EXPECT_TRUE(deletehighlighted(context, edit));
    EXPECT_EQ(how(1), static_cast<int>(OwnHow::corrected));
    EXPECT_EQ(how(4), static_cast<int>(OwnHow::entered));
    pickport(context, edit, 3);
    EXPECT_TRUE(deletehighlighted(context, edit));
    ASSERT_EQ(areanotes(session.folders, area()).size(), 1U);
    EXPECT_EQ(areanotes(session.folders, area()).at(0).number, 1);
    std::filesystem::remove(ownportspath(session.folders));
    std::filesystem::create_directories(ownportspath(session.folders));
    typenewport();
    EXPECT_TRUE(addnewport(context, edit));
    EXPECT_EQ(portcount(area()), 4) << "the port is stored all the same";
    EXPECT_NE(edit.status.find("\nThat it is yours could not be noted: Ports.json: "), std::string::npos);
}

TEST_F(HarmonicEditTest, WhatCannotBeWrittenStaysInTheBoxes) {
    std::filesystem::create_directory(area() + ".bak");
    pickarea(context, edit, "UK.hc");
    pickport(context, edit, 0);
    typenewport();
    for (const auto command : {acceptchanges, addnewport, insertnewport, deletehighlighted}) {
        scripted.messages.expectshow("The area file could not be written:\r" + area() + ": Is a directory", "Tarvane");
        EXPECT_FALSE(command(context, edit));
        EXPECT_TRUE(unaccepted(edit));
    }
    EXPECT_EQ(names(area()), "ABCA");
}

TEST_F(HarmonicEditTest, TheMainViewFollowsWhatWasChanged) {
    const double level = session.prediction.z0level;
    closeeditor(context, edit);
    pickarea(context, edit, "UK.hc");
    pickport(context, edit, 0);
    type("txtz0", "13");
    type("txtportname", "Elder Quay");
    acceptchanges(context, edit);
    session.month.monthspredictions = {"a row"};
    closeeditor(context, edit);
    EXPECT_EQ(session.prediction.z0level, level + 10);
    EXPECT_EQ(session.view.portbox, "Port    : Elder Quay");
    EXPECT_TRUE(session.month.monthspredictions.empty());
    EXPECT_EQ(session.port.portlat, 50.5F);
    EXPECT_EQ(session.view.answer, "");

    edit = openeditor(session);
    pickarea(context, edit, "UK.hc");
    pickport(context, edit, 2);
    deletehighlighted(context, edit);
    closeeditor(context, edit);
    EXPECT_EQ(session.view.answer, "The port on show is port 3 of UK.hc now");
    EXPECT_EQ(session.prediction.z0level, 6);
    pickarea(context, edit, "UK.hc");
    pickport(context, edit, 2);
    deletehighlighted(context, edit);
    closeeditor(context, edit);
    EXPECT_EQ(session.view.answer, "There is no port 3 in UK.hc: select a port");
    EXPECT_FALSE(session.prediction.defined);
    EXPECT_STREQ(session.prediction.whynot, nosuchport);
}

TEST_F(HarmonicEditTest, ChangesGoToTheUsersOwnFolderWhichIsReadFromThenOn) {
    session.folders.ownfolder = folder / "own";
    const auto shipped = readwhole(area());
    pickarea(context, edit, "UK.hc");
    pickport(context, edit, 0);
    EXPECT_TRUE(deletehighlighted(context, edit));
    closeeditor(context, edit);
    EXPECT_EQ(readwhole(area()), shipped);
    EXPECT_EQ(session.settings.hcfile, folder / "own/UK.hc");
    EXPECT_EQ(session.view.portbox, "Port    : Birch Sound");
    EXPECT_TRUE(canopen(folder / "own/scratch.hc"));
    EXPECT_FALSE(canopen(session.folders.programfolder + "/scratch.hc"));
}

}  // namespace
}  // namespace tarvane::tests
