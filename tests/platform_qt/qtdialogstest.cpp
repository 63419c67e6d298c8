#include "platform/qt/qtmessages.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include "platform/qt/qtfiledialogs.h"
#include "platform/qt/qtprogress.h"

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

TEST(QtFileDialogs, PlacesOfferedOnceAreNoBookmarksOfTheUser) {
    QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    const auto beside = [](const std::vector<std::string>& places) {
        QList<QUrl> urls;
        QTimer::singleShot(0, qApp, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            urls = dialog->sidebarUrls();
            dialog->reject();
        });
        FileRequest request;
        request.places = places;
        EXPECT_EQ(QtFileDialogs().open(request), std::nullopt);
        return urls;
    };
    const QUrl area = QUrl::fromLocalFile(settings.path());
    const QList<QUrl> before = beside({});
    EXPECT_TRUE(beside({settings.path().toStdString()}).contains(area));
    EXPECT_EQ(beside({}), before);
}

TEST(QtProgress, RunsItsStepsInOrderUntilCancelOrAFailure) {
    QtProgress progress;
    std::vector<int> done;
    const auto step = [&](int i) {
        done.push_back(i);
        QTest::qSleep(2);
        return i != 60;
    };
    EXPECT_TRUE(progress.run("All", 40, step));
    EXPECT_EQ(done.size(), 40U);
    EXPECT_EQ(done.back(), 39);
    done.clear();
    EXPECT_FALSE(progress.run("Fails", 1000, step));
    EXPECT_EQ(done.back(), 60);
    for (const bool escape : {false, true}) {
        done.clear();
        int shown = 0;
        QTimer::singleShot(60, qApp, [&] {
            auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            shown = dialog->value();
            EXPECT_EQ(dialog->findChild<QLabel*>()->text(), "<b>Cancelled</b>");
            if (escape)
                QTest::keyClick(dialog, Qt::Key_Escape);
            else
                dialog->findChild<QPushButton*>()->click();
        });
        EXPECT_FALSE(progress.run("<b>Cancelled</b>", 55, [&](int i) { return QTest::qSleep(8), step(i); }));
        EXPECT_GT(shown, 0);
        EXPECT_LT(done.size(), 50U);
    }
}

}  // namespace
}  // namespace tarvane
