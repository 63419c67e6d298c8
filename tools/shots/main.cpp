// Pictures of every window there is, offscreen: "shots [--out FOLDER] [--area FILE.hc] [--scale N] [--screen WxH]" with
// a standing clock, "shots --mainwindow FILE.png" of the main window as this user would see it now, and "shots --pages
// FOLDER [--area FILE.hc]" of every printout and booklet as a PDF, "shots --manual FOLDER" of the window that shows the
// built manual. The screen is given in its own pixels.
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QTemporaryFile>
#include <QThread>
#include <cmath>
#include <cstdio>

#include "adjust/frmadjustfileselect.h"
#include "adjust/frmadjustsave.h"
#include "adjust/frmheightenter.h"
#include "adjust/frmselectheightfile.h"
#include "adjust/frmweighting.h"
#include "almanac/frmriseresults.h"
#include "almanac/frmsunrise.h"
#include "almanac/sunview.h"
#include "diamonds/frmstreams.h"
#include "mainview/frmtimdat.h"
#include "mainview/monthcommand.h"
#include "mainview/readouts.h"
#include "platform/qt/appearance.h"
#include "portdata/recordfiles.h"
#include "ports/frmchartdepth.h"
#include "ports/frmconfig.h"
#include "ports/frmharmedit.h"
#include "ports/frmhccopy.h"
#include "ports/frmoutoptions.h"
#include "ports/frmshowconf.h"
#include "session/refresh.h"
#include "shell/form1.h"
#include "shell/frmconditions.h"
#include "shots/about.h"
#include "shots/booklets.h"
#include "shots/diamonds.h"
#include "shots/finder.h"
#include "shots/maps.h"
#include "shots/pages.h"
#include "shots/planner.h"
#include "shots/reader.h"
#include "shots/stage.h"

namespace tarvane::shots {
namespace {

struct Options {
    QString out = "shots";
    QString area;
    QString mainwindow;
    QString pages;
    QString manual;
};

/// False for a call that can't be taken.
bool readoptions(const QStringList& arguments, Options& options) {
    for (qsizetype i = 1; i < arguments.size(); i += 2) {
        if (i + 1 >= arguments.size()) return false;
        const QString& value = arguments[i + 1];
        if (arguments[i] == "--out")
            options.out = value;
        else if (arguments[i] == "--area")
            options.area = value;
        else if (arguments[i] == "--mainwindow")
            options.mainwindow = value;
        else if (arguments[i] == "--pages")
            options.pages = value;
        else if (arguments[i] == "--manual")
            options.manual = value;
        else if (arguments[i] != "--scale" && arguments[i] != "--screen")
            return false;
    }
    return true;
}

/// Collects the pictures and what went wrong with them.
struct Album {
    QDir folder;
    int failures = 0;

    void take(QWidget& window, const QString& name) {
        window.show();
        QApplication::processEvents();
        if (!window.grab().save(folder.filePath(name + ".png"))) {
            std::fprintf(stderr, "shots: can't write %s\n", qPrintable(folder.filePath(name + ".png")));
            ++failures;
        }
    }

    template <typename Dialog>
    void takedialog(Stage& stage, const QString& name) {
        MainContext context = stage.context();
        Dialog dialog(context, &stage.window());
        take(dialog, name);
    }
};

void takeday(Album& album, Stage& stage) {
    Session& session = stage.sessiononstage();
    frmtarvane& window = stage.window();
    album.take(window, "frmtarvane");
    picturemousemove(session, *window.Picture1, 15.2);
    window.showview();
    album.take(window, "frmtarvane-mouse");
    picturemousedown(session);
    window.showview();
    album.take(window, "frmtarvane-frozen");
    picturemousedown(session);
    stage.show(80, makedate(2026, 3, 21), 1);
    album.take(window, "frmtarvane-datum-springs");
    window.resize(1100, 700);
    QApplication::processEvents();
    stage.settle();
    album.take(window, "frmtarvane-stretched");
    window.resize(window.minimumSize());
    stage.show(9, makedate(1990, 1, 1));
    album.take(window, "frmtarvane-undefined-day");
    MainContext context = stage.context();
    calculatemonth(context);
    window.showview();
    album.take(window, "frmtarvane-undefined-month");
    clearmonthlist(session);
    stage.show(77, makedate(2026, 7, 14));
}

/// A bar that dries 2 m in the port's depth, and a boat of 1.5 m that wants half a metre under her keel.
void takedepth(Album& album, Stage& stage) {
    Settings& settings = stage.sessiononstage().settings;
    const Settings before = settings;
    const UserDepthRecord charted = readdepth(settings.depfile, settings.currentport);
    UserDepthRecord bar = charted;
    bar.UserDepth = -2;
    writedepth(settings.depfile, settings.currentport, bar);
    settings.currentdraught = 1.5F;
    stage.show(settings.currentport, makedate(2026, 7, 14));
    picturemousemove(stage.sessiononstage(), *stage.window().Picture1, 6.0);
    stage.window().showview();
    album.take(stage.window(), "frmtarvane-depth");
    writedepth(settings.depfile, settings.currentport, charted);
    settings = before;
    stage.show(settings.currentport, makedate(2026, 7, 14));
}

void takelayers(Album& album, Stage& stage) {
    Session& session = stage.sessiononstage();
    frmtarvane& window = stage.window();
    for (const LayersPanel::Row& row : window.layers.rows)
        row.box->click();
    session.showconstants = true;
    window.menuentry("mnuLayersShow")->trigger();
    stage.settle();
    picturemousemove(session, *window.Picture1, 9.4);
    window.showview();
    album.take(window, "frmtarvane-constituents");
    window.menuentry("mnuLayersShow")->trigger();
    stage.settle();
}

/// The day table's fullest day, in both views, and what the status bar says of steps and of a renamed port.
void takestatus(Album& album, Stage& stage) {
    frmtarvane& window = stage.window();
    stage.show(7, makedate(2026, 11, 25));
    album.take(window, "frmtarvane-many-waters");
    window.menuentry("mnuLayersShow")->trigger();
    stage.settle();
    album.take(window, "frmtarvane-many-waters-constituents");
    window.menuentry("mnuLayersShow")->trigger();
    stage.show(77, makedate(2026, 7, 31));
    stage.sessiononstage().port.portname = "Dover";
    window.Nextday->click();
    album.take(window, "frmtarvane-notes");
    stage.show(77, makedate(2026, 7, 14));
}

/// The workshop with readings of a creek over its middle curve, and the windows that it opens.
void takeworkshop(Album& album, Stage& stage) {
    MainContext context = stage.context();
    stage.show(30, makedate(2026, 7, 14));
    frmHarmAdjust window(context, &stage.window());
    album.take(window, "frmHarmAdjust");
    AdjustWorkspace workspace = openworkspace(context);
    std::vector<HeightRecord> readings;
    for (int i = 0; i < 20; ++i) {
        const TimedValue& sample =
            workspace.curves[intermediatecurve].curvesamples[static_cast<std::size_t>(30 + 4 * i)];
        // A post in small waves, read to the centimetre.
        const double height = sample.height * 0.9 + 0.3 + 0.03 * std::sin(7 * i);
        readings.push_back(
            {static_cast<float>(sample.time + 25.0 / 60), static_cast<float>(std::round(height * 100) / 100)});
    }
    const std::string heights = stage.sessiononstage().folders.programfolder + "/creek.ht";
    writeheights(heights, readings);
    window.displayheights(heights);
    window.findChild<QPushButton*>("cmdFit")->click();
    window.columns[intermediatecurve].picture->onmousemove(9.4, 0);
    album.take(window, "frmHarmAdjust-fitted");
    frmHeightEnter entry(context, workspace, &window);
    entry.File1->setCurrentRow(0);
    entry.cmdOpen->click();
    entry.lstHours->setCurrentRow(9);
    entry.lstMetres->setCurrentRow(3);
    album.take(entry, "frmHeightEnter");
    frmSelectHeightFile select(context, workspace, &window);
    select.File1->setCurrentRow(0);
    album.take(select, "frmSelectHeightFile");
    FrmAdjustfileselect load(context, workspace, &window);
    load.File1->setCurrentRow(0);
    load.List1->setCurrentRow(76);
    load.cmdPort1->click();
    album.take(load, "FrmAdjustfileselect");
    frmAdjustSave save(context, workspace, &window);
    save.File1->setCurrentRow(0);
    save.Text1->setText("Kingfisher Creek");
    album.take(save, "frmAdjustSave");
    frmWeighting weighting(context, workspace, &window);
    weighting.txtname->setText("Kingfisher Creek");
    weighting.txtlat->setText("49.43.00N");
    weighting.txtlong->setText("001.56.00W");
    album.take(weighting, "frmWeighting");
    stage.show(77, makedate(2026, 7, 14));
}

/// A long calculation half way through.
void takeprogress(Album& album, Stage& stage) {
    stage.window().activateWindow();
    stage.context().services.progress.run("High waters of Cherbourg, 2026 and 2027", 120, [&](int i) {
        QThread::msleep(4);
        if (i == 60) album.take(*QApplication::activeModalWidget(), "progress");
        return i < 60;
    });
}

/// A diamond in a channel and one in the open, through the hours of a day's high waters; and the window without a file.
void takestreams(Album& album, Stage& stage) {
    MainContext context = stage.context();
    album.takedialog<frmstreams>(stage, "frmstreams-without-a-file");
    DiamondRecord channel{50.7F, -1.5F, "A", {}}, open{50.5F, -1.7F, "B", {}};
    const float rates[] = {1.9F, 2.6F, 2.4F, 1.8F, 1.1F, 0.3F, 0.8F, 1.7F, 2.2F, 2.1F, 1.5F, 0.6F, 0.9F};
    for (std::size_t i = 0; i < streamhours; ++i) {
        const auto hour = static_cast<float>(i);
        channel.streams[i] = {i < 5 ? 248 + hour : 66 + hour, rates[i], rates[i] / 2};
        open.streams[i] = {20 + 27 * hour, 1.2F + 0.4F * static_cast<float>(i % 3), 0.6F};
    }
    const std::string file = context.session.folders.programfolder + "/approaches.l20";
    AreaBackups kept;
    for (const DiamondRecord& diamond : {channel, open})
        adddiamond(kept, file, diamond);
    frmstreams window(context, &stage.window());
    window.table->setCurrentCell(9, 1);
    album.take(window, "frmstreams");
    window.resize(1200, 800);
    window.cmbDiamond->setCurrentIndex(1);
    album.take(window, "frmstreams-stretched");
    for (const std::string& made : {file, file + ".bak"})
        context.services.folders.remove(made);
}

/// The editor with a port in its boxes, and the copying of three ports behind those of the same area.
void takemaintenance(Album& album, Stage& stage) {
    MainContext context = stage.context();
    frmharmedit editor(context, &stage.window());
    editor.fileList->setCurrentRow(0);
    editor.portlist->setCurrentRow(76);
    album.take(editor, "frmharmedit");
    frmHCcopy copying(context, &stage.window());
    copying.fillist->setCurrentRow(0);
    copying.fileDestName->setCurrentRow(0);
    for (const int row : {2, 6, 6}) {
        copying.List1->setCurrentRow(row);
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
        QApplication::sendEvent(copying.List1, &space);
    }
    album.take(copying, "frmHCcopy");
}

void takeeverything(Album& album, const std::string& area) {
    const ClockReading at{makedate(2026, 7, 14), 14, 32, 0};
    Stage stage(area, at);
    takeday(album, stage);
    takedepth(album, stage);
    takelayers(album, stage);
    takestatus(album, stage);
    MainContext context = stage.context();
    calculatemonth(context);
    stage.window().showview();
    album.take(stage.window(), "frmtarvane-month");
    stage.sessiononstage().view.monthvisible = false;
    stage.window().showview();
    album.takedialog<frmconfig>(stage, "frmconfig");
    album.takedialog<frmChartdepth>(stage, "frmChartdepth");
    album.takedialog<Frmtimdat>(stage, "Frmtimdat");
    album.takedialog<frmoutoptions>(stage, "frmoutoptions");
    album.takedialog<frmshowconf>(stage, "frmshowconf");
    takemaintenance(album, stage);
    takestreams(album, stage);
    takeprogress(album, stage);
    takediamonds(stage, [&album](QWidget& window, const QString& name) { album.take(window, name); });
    takeabout(stage, [&album](QWidget& window, const QString& name) { album.take(window, name); });
    takeplanner(stage, [&album](QWidget& window, const QString& name) { album.take(window, name); });
    takefinder(stage, QFileInfo(QString::fromStdString(area)).path().toStdString(),
               [&album](QWidget& window, const QString& name) { album.take(window, name); });
    preparesunview(stage.sessiononstage());
    album.takedialog<Frmsunrise>(stage, "Frmsunrise");
    calculatesun(context, portsuninput(stage.sessiononstage()));
    album.takedialog<Frmriseresults>(stage, "Frmriseresults");
    takeworkshop(album, stage);
    frmConditions conditions(context.services, stage.sessiononstage().folders);
    album.take(conditions, "frmConditions");
    Form1 locales(context.services.locale);
    album.take(locales, "Form1");
}

void takeworld(Album& album, const std::string& area) {
    Stage stage(area, {makedate(2026, 7, 14), 14, 32, 0});
    takemaps(stage, area, [&album](QWidget& window, const QString& name) { album.take(window, name); });
}

void takeoddtides(Album& album) {
    QTemporaryDir folder;
    Stage stage(oddarea(folder.filePath("odd.hc").toStdString()), {makedate(2026, 7, 14), 14, 32, 0});
    const char* names[] = {"negative", "flat", "one-turning-point", "great-range"};
    for (std::int16_t port = 1; port <= 4; ++port) {
        stage.show(port, makedate(2026, 7, 14));
        album.take(stage.window(), QString("frmtarvane-") + names[port - 1]);
    }
}

/// A screen of this many pixels, "1366x768"; the platform reads its description from a file.
void setscreen(const QByteArray& size, QTemporaryFile& description) {
    const QList<QByteArray> pixels = size.split('x');
    description.open();
    description.write(
        "{\"screens\":[{\"name\":\"screen\",\"x\":0,\"y\":0,\"logicalDpi\":96,\"logicalBaseDpi\":96,\"dpr\":1,"
        "\"width\":" +
        pixels.first() + ",\"height\":" + pixels.last() + "}]}");
    description.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + description.fileName().toLocal8Bit());
}

int run(const Options& options) {
    const QString area = options.area.isEmpty() ? QApplication::applicationDirPath() + "/UK.hc" : QString(options.area);
    if (!options.pages.isEmpty()) {
        const bool taken = takepages(options.pages.toStdString(), area.toStdString());
        return takebooklets(options.pages.toStdString(), area.toStdString()) && taken ? 0 : 1;
    }
    if (!options.manual.isEmpty()) return takereader(options.manual.toStdString()) ? 0 : 1;
    Album album{QDir(options.out)};
    if (!options.mainwindow.isEmpty()) {
        const QFileInfo file(options.mainwindow);
        album.folder = file.absoluteDir();
        Stage stage;
        album.take(stage.window(), file.completeBaseName());
        return album.failures ? 1 : 0;
    }
    QDir().mkpath(options.out);
    takeeverything(album, area.toStdString());
    takeworld(album, area.toStdString());
    takeoddtides(album);
    return album.failures ? 1 : 0;
}

}  // namespace
}  // namespace tarvane::shots

int main(int argc, char** argv) {
    QByteArray screen = "3840x2160";
    for (int i = 1; i + 1 < argc; ++i) {
        if (QByteArray(argv[i]) == "--scale") qputenv("QT_SCALE_FACTOR", argv[i + 1]);
        if (QByteArray(argv[i]) == "--screen") screen = argv[i + 1];
    }
    QTemporaryFile description;
    tarvane::shots::setscreen(screen, description);
    QApplication application(argc, argv);
    tarvane::setappearance(application);
    tarvane::shots::Options options;
    if (!tarvane::shots::readoptions(QApplication::arguments(), options)) {
        std::fprintf(stderr,
                     "usage: shots [--out FOLDER] [--area FILE.hc] [--scale N] [--screen WxH] | "
                     "shots --mainwindow FILE.png | shots --pages FOLDER [--area FILE.hc] | shots --manual FOLDER\n");
        return 2;
    }
    return tarvane::shots::run(options);
}
