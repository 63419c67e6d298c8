#include "manual/chapters.h"

#include <QRect>

#include "fakes/temporaryfolder.h"

namespace tarvane::manual::tests {
namespace {

std::string refusal(const QString& text) {
    try {
        readchapter(text, "03-x.md");
    } catch (const SourceError& refused) {
        return refused.what();
    }
    return "";
}

TEST(Chapters, FiguresAreTakenOutWhereTheyStand) {
    const Chapter chapter = readchapter(
        "# Springs and neaps\n\nText.\n\n![One, (two)](shot:frmtarvane?crop=0,24,410,372)\n"
        "```\n# no title, ![no](shot:figure) here\n```\n1. A step\n\n   ![Three](figure:depths.svg)\n",
        "03-springs.md");
    EXPECT_EQ(chapter.title, "Springs and neaps");
    ASSERT_EQ(chapter.figures.size(), 2u);
    EXPECT_EQ(chapter.figures[0].caption, "One, (two)");
    EXPECT_EQ(chapter.figures[0].name, "frmtarvane");
    EXPECT_EQ(chapter.figures[0].crop, QRect(0, 24, 410, 372));
    EXPECT_EQ(chapter.figures[1].kind, "figure");
    EXPECT_EQ(chapter.figures[1].name, "depths.svg");
    EXPECT_TRUE(chapter.figures[1].crop.isNull());
    EXPECT_TRUE(chapter.markdown.contains("# no title, ![no](shot:figure) here"));
    EXPECT_LT(chapter.markdown.indexOf(figuremark(0)), chapter.markdown.indexOf("   " + figuremark(1)));
    EXPECT_EQ(figureof(figuremark(12)), 12);
    EXPECT_EQ(figureof("Figure 1"), -1);
    EXPECT_EQ(figureof("@figure one"), -1);
}

TEST(Chapters, WhatCannotBeLaidOutIsNamed) {
    const std::pair<QString, std::string> rows[] = {
        {"Springs\n", "03-x.md: the first line must be \"# Title of the chapter\""},
        {"## Springs\n", "03-x.md: the first line must be \"# Title of the chapter\""},
        {"# One\n\n# Two\n", "03-x.md: only the first line can be a chapter's title: # Two"},
        {"# One\nsee ![it](shot:a) here\n",
         "03-x.md: a figure must stand in a line of its own: see ![it](shot:a) here"},
        {"# One\n![it](shot:a?crop=1,2,3)\n",
         "03-x.md: a figure's part must read ?crop=LEFT,TOP,WIDTH,HEIGHT: a?crop=1,2,3"},
    };
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(refusal(text), expected);
    const fakes::TemporaryFolder folder;
    const QString path = QString::fromStdString(folder / "");
    EXPECT_THROW(readchapters(path), SourceError);
    for (const char* name : {"02-b.md", "10-c.md", "01-a.md", "notes.md", "03-d.txt"})
        putfile(folder / name, std::string("# ") + name + "\r\ntext\r\n");
    std::string titles;
    for (const Chapter& chapter : readchapters(path))
        titles += chapter.title.toStdString() + " ";
    EXPECT_EQ(titles, "01-a.md 02-b.md 10-c.md ");
}

}  // namespace
}  // namespace tarvane::manual::tests
