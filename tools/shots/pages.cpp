#include "shots/pages.h"

#include <QTemporaryDir>
#include <cmath>
#include <cstdio>
#include <limits>

#include "almanac/sunoutput.h"
#include "almanac/sunview.h"
#include "mainview/monthcommand.h"
#include "mainview/printcommands.h"
#include "portdata/recordfiles.h"
#include "shots/stage.h"

namespace tarvane::shots {
namespace {

/// Says yes to every question, and notes what is told.
class Yes : public Messages {
  public:
    void show(const std::string& text, const std::string&, MessageIcon) override {
        std::fprintf(stderr, "shots: %s\n", text.c_str());
        ++told;
    }
    bool ask(const std::string&, const std::string&, MessageIcon) override { return true; }
    Answer askorcancel(const std::string&, const std::string&, MessageIcon) override { return Answer::yes; }
    void beep() override {}

    int told = 0;
};

struct Press {
    Press(Stage& played, const std::string& folder)
        : stage(played), onstage(played.context()), context{onstage.session, withown(), onstage.surfaces} {
        printer.setpdfonly(true);
        printer.setpdffolder(folder);
    }

    Services withown() {
        const Services& s = onstage.services;
        return {yes,       s.filedialogs, printer,    s.clipboard, s.clock,    s.locale,
                s.folders, s.windows,     s.progress, s.drives,    s.drawings, s.zones};
    }

    void day(std::int16_t port, Date date, float output) {
        stage.show(port, date, output);
        printcurve(context);
        printtenminutes(context);
    }

    void month(std::int16_t port, Date date) {
        stage.show(port, date);
        calculatemonth(context);
        printmonth(context);
    }

    void sun(std::int16_t port, Date date) {
        stage.show(port, date);
        preparesunview(context.session);
        calculatesun(context, portsuninput(context.session));
        printsun(context);
    }

    Stage& stage;
    MainContext onstage;
    Yes yes;
    QtPrinter printer;
    MainContext context;
};

const ClockReading at{makedate(2026, 7, 14), 14, 32, 0};

void takecommon(const std::string& folder, const std::string& area, int& told) {
    Stage stage(area, at);
    Press press(stage, folder);
    for (const float output : {1.0F, 3.0F})
        press.day(77, makedate(2026, 7, 14), output);
    press.day(77, makedate(1990, 1, 1), 1);
    press.month(77, makedate(2026, 7, 14));
    press.month(77, makedate(2026, 8, 14));  // runs on
    press.month(77, makedate(1990, 1, 14));
    press.sun(77, makedate(2026, 7, 14));
    press.sun(77, makedate(2026, 2, 14));
    told += press.yes.told;
}

void takeodd(const std::string& folder, int& told) {
    QTemporaryDir own;
    const std::string area = oddarea(own.filePath("odd.hc").toStdString());
    HarmonicRecord quick = readport(area, 1);
    quick.PortName = "Quick waters";
    quick.LF6 = 3;
    writeport(area, 5, quick);
    HarmonicRecord broken = readport(area, 4);
    broken.PortName = "Broken/record";
    broken.Z0 = std::numeric_limits<float>::quiet_NaN();
    writeport(area, 6, broken);
    Stage stage(area, at);
    Press press(stage, folder);
    for (const std::int16_t port : std::initializer_list<std::int16_t>{1, 2, 4, 6})
        press.day(port, makedate(2026, 7, 14), 2);
    for (const std::int16_t port : std::initializer_list<std::int16_t>{2, 5, 6})
        press.month(port, makedate(2026, 7, 14));
    told += press.yes.told;
}

}  // namespace

bool takepages(const std::string& folder, const std::string& area) {
    int told = 0;
    takecommon(folder, area, told);
    takeodd(folder, told);
    return told == 0;
}

}  // namespace tarvane::shots
