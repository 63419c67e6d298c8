#include "platform/qt/qtmessages.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/qt/qtfiledialogs.h"

namespace tarvane {
namespace {

TEST(QtMessages, AQuestionIsAnsweredByItsButtonsAndEscape) {
    QtMessages messages;
    using Press = void (*)(QMessageBox&);
    const std::pair<Press, Answer> rows[] = {
        {[](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }, Answer::yes},
        {[](QMessageBox& box) { box.button(QMessageBox::No)->click(); }, Answer::no},
        {[](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); }, Answer::cancel},
        {[](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }, Answer::yes},
        {[](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }, Answer::cancel}};
    for (const auto& [press, answer] : rows) {
        QTimer::singleShot(0, qApp, [press_ = press] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            EXPECT_EQ(box->text(), "Enter <b>it</b>?\nNow?");
            press_(*box);
        });
        EXPECT_EQ(messages.askorcancel("Enter <b>it</b>?\r\nNow?", "Tarvane"), answer);
    }
}

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
