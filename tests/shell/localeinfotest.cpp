#include "shell/localeinfo.h"

#include <gtest/gtest.h>

#include "fakes/scriptedlocale.h"

namespace tarvane {
namespace {

TEST(LocaleInfo, OrdersInWordsAndWhatTheSystemDoesNotKnowIsEmpty) {
    ScriptedLocale locale;
    locale.infotexts = {{1, "0809"}, {33, "1"}, {34, "2"}, {4107, std::nullopt}};
    auto rows = localeinforows(locale);
    EXPECT_EQ(rows[0].text, "0809");
    EXPECT_EQ(rows[3].text, "2   Year - Month - Day");
    EXPECT_EQ(rows[4].text, "1   Day - Month - Year");
    EXPECT_EQ(rows[10].text, "");
    locale.infotexts[33] = "0";
    EXPECT_EQ(localeinforows(locale)[4].text, "0   Month - Day - Year");
}

}  // namespace
}  // namespace tarvane
