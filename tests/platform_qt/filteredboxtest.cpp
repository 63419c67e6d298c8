#include "platform/qt/filteredbox.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>

#include "fakes/scriptedquestions.h"

namespace tarvane {
namespace {

char32_t digitsandnorth(char32_t key) {
    if (key == U'n') return U'N';
    return (key >= U'0' && key <= U'9') || key == U'N' ? key : 0;
}

struct OpenBox : FilteredBox {
    using FilteredBox::dropEvent;
    using FilteredBox::FilteredBox;
    using FilteredBox::inputMethodEvent;
};

void usecontextmenu(OpenBox& box) {
    QTimer::singleShot(0, &box, [] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (QAction* entry : menu->actions())
            if (entry->text().contains("Paste")) entry->trigger();
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {2, 2}, box.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&box, &event);
}

using Way = void (*)(OpenBox&, const QString&);
const std::pair<const char*, Way> waysin[] = {
    {"keys",
     [](OpenBox& box, const QString& text) {
         for (const QChar letter : text)
             QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, letter, Qt::NoModifier);
     }},
    {"paste",
     [](OpenBox& box, const QString& text) {
         QApplication::clipboard()->setText(text);
         QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
     }},
    {"context menu",
     [](OpenBox& box, const QString& text) {
         QApplication::clipboard()->setText(text);
         usecontextmenu(box);
     }},
    {"input method",
     [](OpenBox& box, const QString& text) {
         QInputMethodEvent event;
         event.setCommitString(text);
         box.inputMethodEvent(&event);
     }},
};

TEST(FilteredBox, EveryWayInPassesTheRule) {
    for (const auto& [name, enter] : waysin) {
        ScriptedMessages messages;
        OpenBox box(digitsandnorth, messages);
        int keys = 0;
        box.onkey = [&] { ++keys; };
        box.setText(" 3.5");
        box.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
        box.selectAll();
        enter(box, "x");
        EXPECT_EQ(box.selectedText(), " 3.5") << name << ": what is dropped wipes nothing out";
        EXPECT_EQ(messages.beeps, 1) << name;
        EXPECT_EQ(keys, 1) << name;
        enter(box, "4n");
        EXPECT_EQ(box.text(), "4N") << name;
        box.setCursorPosition(1);
        enter(box, "1\u00E92");
        EXPECT_EQ(box.text(), "412N") << name;
        EXPECT_EQ(messages.beeps, 2) << name;
        box.undo();
        EXPECT_TRUE(box.isRedoAvailable()) << name;
    }
}

TEST(FilteredBox, ADroppedTextPassesTheRuleWhereItFalls) {
    ScriptedMessages messages;
    OpenBox box(digitsandnorth, messages);
    box.setText("12");
    box.selectAll();
    for (const auto& [text, expected, selected] : {std::tuple{"xy", "12", "12"}, {"3n x", "123N", ""}}) {
        QMimeData data;
        data.setText(text);
        QDropEvent event({1000, 2}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        box.dropEvent(&event);
        EXPECT_EQ(box.text(), expected);
        EXPECT_EQ(box.selectedText(), selected);
    }
    EXPECT_EQ(messages.beeps, 2);
}

TEST(FilteredBox, OtherKeysAreTheBoxsOwn) {
    ScriptedMessages messages;
    OpenBox box(digitsandnorth, messages);
    int keys = 0;
    box.onkey = [&] { ++keys; };
    box.setText("123");
    box.show();
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(box.selectedText(), "123");
    EXPECT_EQ(keys, 0);
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(box.text(), "2");
    EXPECT_EQ(keys, 2);
    box.setText("1.25");
    QTest::mouseDClick(&box, Qt::LeftButton, {}, {4, box.height() / 2});
    EXPECT_EQ(box.selectedText(), "1.25");
    EXPECT_EQ(messages.beeps, 0);
}

}  // namespace
}  // namespace tarvane
