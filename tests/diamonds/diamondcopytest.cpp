#include "diamonds/diamondcopy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "fakes/mainfixture.h"

namespace tarvane::tests {
namespace {

struct DiamondsCopied : testing::Test, MainFixture {
    const std::string solent = inprogram("solent.l20"), mine = inprogram("MINE.L20");
    DiamondCopy copy;

    DiamondsCopied() {
        put(solent, {"A", "B", "C"});
        put(mine, {"X"});
        copy = opendiamonds(session);
    }

    std::string inprogram(const std::string& name) const { return session.folders.programfolder + "/" + name; }

    static DiamondRecord diamond(const std::string& letter) {
        DiamondRecord record{50.75F, -1.5F, letter, {}};
        record.streams[0] = {45, 1.25F, 0.5F};
        record.streams[9] = {1234, 0, 0};
        return record;
    }
    static void put(const std::string& path, const std::vector<std::string>& letters) {
        AreaBackups backups;
        for (const std::string& letter : letters)
            adddiamond(backups, path, diamond(letter));
    }
    static std::string letters(const std::string& path) {
        std::string all;
        for (const DiamondRecord& each : readdiamonds(path).diamonds)
            all += each.DiamondID;
        return all;
    }
    void pick(int index) {
        ASSERT_TRUE(picksourcefile(context, copy, "solent.l20"));
        ASSERT_TRUE(pickdiamond(context, copy, index));
    }
    std::string& box(DiamondSide& side, const std::string& name) {
        const Side which = &side == &copy.source ? Side::source : Side::destination;
        std::size_t place = 0;
        while (boxname(which, place) != name)
            if (++place == diamondboxes) throw std::runtime_error("no box " + name);
        return side.texts[place];
    }
};

TEST_F(DiamondsCopied, AnEntryIsShownInItsForms) {
    EXPECT_EQ(copy.files, (std::vector<std::string>{"MINE.L20", "solent.l20"}));
    pick(1);
    EXPECT_EQ(copy.source.entries[1], "B  50.45.00N  001.30.00W");
    EXPECT_EQ(copy.Lbldiamno, "2");
    EXPECT_EQ(copy.status, "solent.l20: 3 diamonds");
    const char* const rows[][2] = {{"txtid", "B"},         {"txtlat", "50.45.00N"}, {"txtlong", "001.30.00W"},
                                   {"txtdirm6", "045"},    {"txtspratem6", "1.3"},  {"txtnpratem6", "0.5"},
                                   {"txtdirhw", "000"},    {"txtdirp3", "1,234"},   {"txtspratep3", "0.0"},
                                   {"txtnpratep6", "0.0"}, {"txtdirp6", "000"}};
    for (const auto& row : rows)
        EXPECT_EQ(box(copy.source, row[0]), row[1]) << row[0];
    const struct {
        float value;
        std::size_t hour;
        const char* shown;
    } forms[] = {{1234, 8, "1234"}, {1234, 9, "1,234"}, {7, 9, "007"}, {-5, 0, "-005"}, {std::nanf(""), 0, ""}};
    for (const auto& form : forms) {
        DiamondRecord record;
        record.streams[form.hour].StreamDir = form.value;
        EXPECT_EQ(diamondtexts(record)[firsthourplace + 3 * form.hour], form.shown);
    }
    emptyhour(copy.source.texts, firsthourplace + 3 * highwaterplace);
    EXPECT_EQ(box(copy.source, "txtdirhw") + box(copy.source, "txtspratehw") + box(copy.source, "txtnpratehw"), "");
    EXPECT_EQ(box(copy.source, "txtnpratem1") + box(copy.source, "txtdirp1"), "0.0000");
}

TEST_F(DiamondsCopied, WhatTheBoxesShowIsAddedToAFileThatIsMadeForIt) {
    const std::string note = filetext(solent);
    pick(0);
    box(copy.source, "txtspratem6") = "2.5x";
    copyacross(copy);
    box(copy.destination, "txtDestID") = "N";
    const char* const rows[][3] = {{"  new ", "new.l20", "N"},
                                   {"new", "new.l20", "NN"},
                                   {"other.l30", "other.l30.l20", "N"},
                                   {"mine.l20", "MINE.L20", "XN"},
                                   {"BIG.L20", "BIG.L20", "N"}};
    for (const auto& row : rows) {
        copy.txtDestFile = row[0];
        EXPECT_TRUE(addtodestination(context, copy)) << row[0];
        EXPECT_EQ(copy.destination.file, inprogram(row[1]));
        EXPECT_EQ(letters(inprogram(row[1])), row[2]) << row[0];
        EXPECT_EQ(copy.destination.entries.back(), "N   50.45N   1.30W") << "the short forms after a write";
    }
    EXPECT_EQ(filetext(solent), note);
    EXPECT_EQ(copy.files.size(), 5U);
    EXPECT_EQ(readdiamonds(inprogram("new.l20")).diamonds[0].streams[0], (Stream{45, 2.5F, 0.5F}));
    EXPECT_TRUE(pickdestfile(context, copy, "solent.l20"));
    EXPECT_EQ(copy.txtDestFile, solent);
    EXPECT_TRUE(addtodestination(context, copy)) << "by its whole path";
    EXPECT_EQ(letters(solent), "ABCN");
    EXPECT_EQ(copy.source.entries.size(), 4U) << "the other side shows the file too";
    EXPECT_EQ(filetext(solent + ".bak"), note);
}

TEST_F(DiamondsCopied, EntriesAreAmendedAddedAndDeletedInPlace) {
    pick(1);
    box(copy.source, "txtid") = "Z";
    box(copy.source, "txtdirm6") = "";
    EXPECT_TRUE(amendhighlighted(context, copy));
    EXPECT_EQ(letters(solent), "AZC");
    EXPECT_EQ(copy.source.listindex, 1);
    EXPECT_EQ(copy.source.entries[1], "Z   50.45N   1.30W");
    EXPECT_EQ(box(copy.source, "txtdirm6"), "000");
    EXPECT_EQ(box(copy.source, "txtdirp3"), "001") << "the number ends at the comma";
    EXPECT_TRUE(addtosource(context, copy));
    EXPECT_EQ(letters(solent), "AZCZ");
    EXPECT_EQ(copy.source.listindex, -1);
    ASSERT_TRUE(pickdiamond(context, copy, 1));
    EXPECT_TRUE(deletehighlighted(context, copy));
    EXPECT_EQ(letters(solent), "ACZ");
    EXPECT_EQ(copy.source.listindex, 1) << "the next one";
    EXPECT_EQ(copy.source.texts, DiamondTexts(diamondboxes));
    for (const char* left : {"AC", "A", ""}) {
        ASSERT_TRUE(pickdiamond(context, copy, static_cast<int>(copy.source.entries.size()) - 1));
        EXPECT_TRUE(deletehighlighted(context, copy));
        EXPECT_EQ(letters(solent), left);
        EXPECT_EQ(copy.source.listindex, -1);
    }
    EXPECT_EQ(std::filesystem::file_size(solent), 0U);
    EXPECT_FALSE(canopen(inprogram("~scratch.~20")));
}

TEST_F(DiamondsCopied, WhatIsMissingIsToldAndNothingWritten) {
    const std::string before = filetext(solent), other = filetext(mine);
    const auto refused = [this](const std::string& text, bool (*command)(MainContext&, DiamondCopy&),
                                const std::string& title) {
        scripted.messages.expectshow(text, title);
        EXPECT_FALSE(command(context, copy)) << text;
    };
    const std::string nodelete = "No diamond is highlighted in the source list. Nothing was deleted.";
    for (const auto command : {amendhighlighted, addtosource})
        refused("Select a file", command, "");
    refused("Select a file", addtodestination, "");
    refused(nodelete, deletehighlighted, "Tarvane");
    ASSERT_TRUE(picksourcefile(context, copy, "solent.l20"));
    refused(nodelete, deletehighlighted, "Tarvane");
    for (const auto command : {amendhighlighted, addtosource}) {
        copy.source.listindex = -1;
        refused("Highlight a Tidal Diamond Entry", command, "");
        pick(0);
        box(copy.source, "txtlong") = "";
        refused(" Must enter a Longitude", command, "Tarvane");
        box(copy.source, "txtlat") = "";
        refused(" Must enter a Latitude", command, "Tarvane");
    }
    pick(0);
    copyacross(copy);
    const char* const rows[][4] = {
        {"mine", "txtDestLat", "", " Must enter a Latitude"},
        {"mine", "txtDestLong", "", " Must enter a Longitude"},
        {"mine", "txtDestID", "AB", "A diamond's reference is one letter, and \"AB\" is more. Nothing was written."},
        {"mine", "txtDestID", "Ω", "\"Ω\" can't be kept as a diamond's reference. Nothing was written."},
        {"mine", "txtDestdirp6", "1e39", "A number is larger than a diamond can hold. Nothing was written."},
        {"../mine", "txtDestID", "A",
         "A file name can't hold \"/\" or \"\\\", nor begin with a point: files lie in the program's folder. Nothing "
         "was written."}};
    for (const auto& row : rows) {
        const DiamondTexts whole = copy.destination.texts;
        copy.txtDestFile = row[0];
        box(copy.destination, row[1]) = row[2];
        refused(row[3], addtodestination, "Tarvane");
        copy.destination.texts = whole;
    }
    std::filesystem::resize_file(solent, 165);
    pick(0);
    std::filesystem::resize_file(solent, 0);
    refused("There is no entry no. 1 in solent.l20 any more. Choose the file anew. Nothing was written.",
            amendhighlighted, "Tarvane");
    std::filesystem::remove(solent);
    scripted.messages.expectshow("The diamond file can't be read: " + solent + ": No such file or directory");
    EXPECT_FALSE(picksourcefile(context, copy, "solent.l20"));
    EXPECT_EQ(filetext(mine), other);
}

TEST_F(DiamondsCopied, BytesOfNoWholeEntryAreToldOf) {
    const std::string one = filetext(mine), before = filetext(solent);
    const std::string behind = "solent.l20: 3 diamonds; the last 2 bytes of the file make no whole entry";
    putfile(solent, before + "tt");
    pick(2);
    EXPECT_EQ(copy.status, behind);
    EXPECT_TRUE(amendhighlighted(context, copy));
    EXPECT_EQ(copy.status, behind + "; entry no. 3 was amended");
    EXPECT_TRUE(addtosource(context, copy));
    EXPECT_EQ(copy.status,
              "solent.l20: 4 diamonds; the new one stands last. The 2 bytes that made no whole entry had "
              "to go: solent.l20.bak has the file as it was");
    EXPECT_EQ(filetext(solent + ".bak"), before + "tt");
    putfile(mine, one.substr(0, 164));
    EXPECT_TRUE(pickdestfile(context, copy, "MINE.L20"));
    EXPECT_TRUE(copy.destination.entries.empty());
    EXPECT_EQ(copy.status, "MINE.L20: 0 diamonds; the last 164 bytes of the file make no whole entry");
}

TEST_F(DiamondsCopied, ADiskThatIsFullLosesNothing) {
    pick(1);
    box(copy.source, "txtid") = "Z";
    const std::string before = filetext(solent);
    for (const auto command : {amendhighlighted, addtosource, deletehighlighted}) {
        scripted.messages.expectshow("The diamond file could not be written:\r" + solent + ": File too large");
        EXPECT_FALSE(onadiskof(100, [&] { return command(context, copy); }));
        EXPECT_EQ(filetext(solent), before);
        EXPECT_EQ(box(copy.source, "txtid"), "Z");
        EXPECT_TRUE(unwritten(copy.source));
    }
    // Where the program's folder can't be written the user's own takes the changes.
    session.folders.ownfolder = folder / "own";
    EXPECT_TRUE(pickdestfile(context, copy, "solent.l20"));
    EXPECT_TRUE(amendhighlighted(context, copy));
    EXPECT_EQ(filetext(solent), before);
    EXPECT_EQ(letters(folder / "own/solent.l20"), "AZC");
    for (const DiamondSide* side : {&copy.source, &copy.destination})
        EXPECT_EQ(side->file + side->entries[1], folder / "own/solent.l20" + "Z   50.45N   1.30W");
    copy.destination.texts = copy.source.texts;
    copy.txtDestFile = solent;
    EXPECT_TRUE(addtodestination(context, copy));
    EXPECT_EQ(letters(folder / "own/solent.l20"), "AZCZ");
}

TEST_F(DiamondsCopied, WhatWasTypedIsAskedForBeforeItGoes) {
    const std::string amend = "Entry no. 2 of solent.l20 was changed here, and not amended. Amend it?";
    const std::string add = "What was typed on the right side stands in no file. Add it to the destination file?";
    pick(1);
    EXPECT_TRUE(amendorleave(context, copy) && addorleave(context, copy)) << "nothing was typed";
    copyacross(copy);
    EXPECT_TRUE(addorleave(context, copy)) << "what was only copied stands in its file";
    box(copy.source, "txtid") = "Z";
    scripted.messages.expectaskorcancel(amend, Answer::cancel, "Tarvane");
    EXPECT_FALSE(amendorleave(context, copy));
    copyacross(copy);
    EXPECT_TRUE(amendorleave(context, copy)) << "the right side has it now";
    copy.txtDestFile = "mine.l20";
    scripted.messages.expectaskorcancel(add, Answer::cancel, "Tarvane");
    EXPECT_FALSE(addorleave(context, copy));
    scripted.messages.expectaskorcancel(add, Answer::yes);
    EXPECT_TRUE(addorleave(context, copy));
    EXPECT_EQ(letters(mine), "XZ");
    box(copy.source, "txtid") = "Y";
    scripted.messages.expectaskorcancel(amend, Answer::yes);
    EXPECT_TRUE(amendorleave(context, copy));
    EXPECT_EQ(letters(solent), "AYC");
    box(copy.source, "txtid") = "W";
    ASSERT_TRUE(picksourcefile(context, copy, "solent.l20"));
    scripted.messages.expectask("What was typed on the left side stands in no file. Let it go?", false);
    EXPECT_FALSE(amendorleave(context, copy));
    // An import may have put another entry in the place of the one on show.
    pick(1);
    rereaddiamonds(session, copy);
    EXPECT_EQ(copy.source.listindex, 1);
    std::filesystem::remove(solent);
    put(solent, {"A", "Q"});
    rereaddiamonds(session, copy);
    EXPECT_EQ(copy.source.listindex, -1);
    EXPECT_EQ(copy.source.entries.size(), 2U);
}

}  // namespace
}  // namespace tarvane::tests
