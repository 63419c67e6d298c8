#include "platform/qt/qtfiledialogs.h"

#include <gtest/gtest.h>

namespace tarvane {
namespace {

TEST(QtFileDialogs, FiltersAreConverted) {
    const std::pair<const char*, QStringList> rows[] = {{"Tables (*.txt)|*.txt", {"Tables (*.txt) (*.txt *.TXT)"}},
                                                        {"CSV file | *csv", {"CSV file (*csv *CSV)"}},
                                                        {"Areas|*.HC|All|*.*", {"Areas (*.HC *.hc)", "All (*.*)"}},
                                                        {"Both|*.l20; *.L30", {"Both (*.l20 *.L20 *.L30 *.l30)"}},
                                                        {"PDF|", {}},
                                                        {"PDF", {}},
                                                        {"", {}}};
    for (const auto& [filter, expected] : rows)
        EXPECT_EQ(namefilters(filter), expected) << filter;
}

}  // namespace
}  // namespace tarvane
