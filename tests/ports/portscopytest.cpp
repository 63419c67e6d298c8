#include "ports/portscopy.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/mainfixture.h"
#include "files/wholefiles.h"
#include "portdata/ownports.h"

namespace tarvane::tests {
namespace {

class PortsCopyTest : public testing::Test, protected MainFixture {
  protected:
    PortsCopyTest() {
        load();
        startgathering(context);
    }
    std::string file(const std::string& name) const { return session.folders.programfolder + "/" + name; }
    std::vector<std::byte> records(const std::vector<std::int16_t>& numbers) const {
        std::vector<std::byte> all;
        for (const std::int16_t number : numbers) {
            const auto bytes = encode(readport(area(), number));
            all.insert(all.end(), bytes.begin(), bytes.end());
        }
        return all;
    }
    void refused(const std::string& told) {
        scripted.messages.expectshow(told, "Tarvane", MessageIcon::exclamation);
        EXPECT_FALSE(saveports(context, copy)) << told;
    }
    PortsCopy copy;
};

TEST_F(PortsCopyTest, GatheredPortsMakeAFileOrGoBehindAnothers) {
    ASSERT_TRUE(picksource(context, copy, "UK.hc"));
    EXPECT_EQ(copy.ports, (std::vector<std::string>{"Alder Quay", "Birch Sound", "Cedar Head", "Alder Quay"}));
    for (const int index : {2, 0, 2})
        EXPECT_TRUE(gather(context, copy, index));
    EXPECT_EQ(copy.listed, (std::vector<std::string>{"Cedar Head", "Alder Quay", "Cedar Head"}));
    EXPECT_EQ(gatheredtext(copy), "3 ports gathered");
    EXPECT_EQ(session.port.portname, "Cedar Head");
    copy.name = " Mine ";
    EXPECT_TRUE(saveports(context, copy));
    EXPECT_EQ(readwhole(file("Mine.hc")), records({3, 1, 3}));
    EXPECT_EQ(session.view.answer, "Mine.hc: 3 ports");
    const AreaNotes notes = areanotes(session.folders, file("Mine.hc"));
    ASSERT_EQ(notes.size(), 3U);
    const OwnMade* made = madeof(notes, readport(area(), 1));
    ASSERT_TRUE(made);
    EXPECT_EQ(made->how, OwnHow::copied);
    EXPECT_EQ(made->from + " " + made->date, "UK 2024-04-09");

    // The next opening has nothing gathered; a file can be copied into itself.
    startgathering(context);
    copy = {};
    picksource(context, copy, "UK.hc");
    gather(context, copy, 1);
    ASSERT_TRUE(pickdestination(context, copy, "UK.hc"));
    EXPECT_EQ(copy.name, "UK");
    EXPECT_EQ(copy.listed, copy.ports) << "what was gathered is no longer listed";
    gather(context, copy, 3);
    EXPECT_EQ(copy.listed.size(), 5U);
    const auto wanted = records({1, 2, 3, 4, 2, 4});
    copy.name = "uk";
    EXPECT_TRUE(saveports(context, copy));
    EXPECT_EQ(readwhole(area()), wanted);
    EXPECT_EQ(session.view.answer, "UK.hc: 6 ports");
    EXPECT_EQ(portcount(area() + ".bak"), 4);
    EXPECT_TRUE(areanotes(session.folders, area()).empty()) << "the ports that were copied are what they were";
    EXPECT_FALSE(canopen(file("scratch.hc.bak")));
}

TEST_F(PortsCopyTest, WhatCannotBeDoneIsToldAndNothingIsWritten) {
    const auto told = [&](const std::string& text) { scripted.messages.expectshow(text, "Tarvane"); };
    told("No data");
    EXPECT_FALSE(gather(context, copy, -1));
    picksource(context, copy, "UK.hc");
    gather(context, copy, 0);
    refused("No file name");
    for (const auto& [name, why] :
         {std::pair{"Scratch", "scratch.hc is the program's own work file, which is emptied again."},
          {"../UK",
           "A file name can't hold \"/\" or \"\\\", nor begin with a point: files lie in the program's "
           "folder."}}) {
        copy.name = name;
        refused(why);
    }
    copy.name = "Mine";
    std::filesystem::create_directory(file("Mine.hc"));
    refused("The ports could not be saved:\r" + file("Mine.hc") + ": Input/output error");
    std::filesystem::remove(file("Mine.hc"));
    std::filesystem::remove(file("scratch.hc"));
    refused("The work file no longer holds the ports that were gathered: " + file("scratch.hc") +
            ". Nothing was written; open this window again and gather them anew.");
    EXPECT_FALSE(canopen(file("Mine.hc")));
    std::filesystem::create_directory(file("scratch.hc"));
    told("The port could not be gathered:\r" + file("scratch.hc") + ": Input/output error");
    EXPECT_FALSE(gather(context, copy, 1));
    EXPECT_EQ(copy.gathered, 1);
    std::filesystem::remove(area());
    told("The port can't be read any more: " + area());
    EXPECT_FALSE(gather(context, copy, 1));
    told("The area file can't be read: " + area());
    EXPECT_FALSE(picksource(context, copy, "UK.hc"));
    EXPECT_TRUE(copy.ports.empty());
}

}  // namespace
}  // namespace tarvane::tests
