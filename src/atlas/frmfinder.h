// "Find a Port": the ports of all areas in one list, found by what is typed. Only controls; what fits is the finder's
// matter. Must not make a port current.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "atlas/frmfindertable.h"
#include "platform/qt/keptnote.h"
#include "platform/qt/modaldialog.h"
#include "session/session.h"

namespace tarvane {

class frmfinder : public ModalDialog {
  public:
    /// Over the ports of all areas, which are read anew where a file has changed by the time that one is chosen.
    frmfinder(MainContext& context, World& world, Lighting light, QWidget* parent = nullptr);

    /// What the program does when the user asks for it here, by a port's place in the world; without one the button
    /// is hidden.
    std::function<void(std::size_t place)> onabout, onmap;

    /// Puts a text into the box.
    void type(const std::string& text);

    /// The port that the window was closed with; nothing when it was just closed. Its area holds it at that moment.
    std::optional<std::size_t> chosen() const { return chosen_; }

    QLineEdit* txtFind = nullptr;
    FinderTable* ports = nullptr;
    QLabel* lblFound = nullptr;
    KeptNote* lblKept = nullptr;
    QPushButton *cmdChoose = nullptr, *cmdFavourite = nullptr, *cmdAbout = nullptr, *cmdMap = nullptr,
                *cancel = nullptr;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void buildlayout();
    void connectcontrols();
    void find();
    void showcurrent();
    void togglefavourite(std::size_t place);
    void choose(std::size_t place);
    void renew();

    MainContext& context;
    World& world;
    const Colours& colours;
    std::unique_ptr<Finder> finder;
    std::optional<std::size_t> chosen_;
};

}  // namespace tarvane
