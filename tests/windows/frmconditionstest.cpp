#include "shell/frmconditions.h"

#include <QAction>
#include <QListWidget>
#include <fstream>

#include "fakes/services.h"
#include "shell/conditions.h"
#include "windows/controls.h"

namespace tarvane::tests {
namespace {

TEST(frmConditions, EveryWayOutIsOneOfTheTwo) {
    ScriptedServices scripted;
    const ProgramFolders folders = startup(scripted.services())->folders;
    using Act = void (*)(frmConditions&);
    const std::pair<std::string, Act> rows[] = {
        {"accepted", [](frmConditions& form) { form.ConditionsOK->click(); }},
        {"accepted", [](frmConditions& form) { QTest::keyClick(form.focusWidget(), Qt::Key_Return); }},
        {"declined", [](frmConditions& form) { form.cmdDecline->click(); }},
        {"declined", [](frmConditions& form) { QTest::keyClick(form.focusWidget(), Qt::Key_Escape); }},
        {"declined", [](frmConditions& form) { form.close(); }},
    };
    for (const auto& [expected, act] : rows) {
        frmConditions form(scripted.services(), folders);
        std::string outcome;
        form.onaccepted = [&] { outcome += "accepted"; };
        form.ondeclined = [&] { outcome += "declined"; };
        present(form);
        EXPECT_EQ(form.windowTitle(), "Tarvane Tides   (v9.5.0)");
        act(form);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !form.isVisible(); }));
        EXPECT_EQ(outcome, expected);
    }
}

TEST(frmConditions, TheConditionsAreReadWholeAndDefaultsRestored) {
    ScriptedServices scripted;
    const ProgramFolders folders = startup(scripted.services())->folders;
    std::ofstream(folders.cfgpath()) << "settings";
    frmConditions form(scripted.services(), folders);
    present(form);
    const std::vector<std::string> lines = conditionslines();
    ASSERT_EQ(form.List1->count(), static_cast<int>(lines.size()));
    for (int i = 0; i < form.List1->count(); ++i) {
        EXPECT_EQ(form.List1->item(i)->text().toStdString(), lines[static_cast<std::size_t>(i)]);
        EXPECT_LE(form.List1->visualItemRect(form.List1->item(i)).right(), form.List1->viewport()->width()) << i;
    }
    form.mnuRestoreDefaults->trigger();
    EXPECT_FALSE(std::filesystem::exists(folders.cfgpath()));
    EXPECT_FALSE(form.mnuHTMLHelp->isEnabled());

    frmConditions helpful(scripted.services(), folders);
    int helped = 0;
    helpful.onhelp = [&] { ++helped; };
    present(helpful);
    helpful.mnuHTMLHelp->trigger();
    EXPECT_EQ(helped, 1);
}

}  // namespace
}  // namespace tarvane::tests
