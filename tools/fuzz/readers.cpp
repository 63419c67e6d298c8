#include "fuzz/readers.h"

#include <fstream>
#include <iterator>

#include "adjust/weighting.h"
#include "adjust/workspace.h"
#include "almanac/sunoutput.h"
#include "almanac/sunview.h"
#include "atlas/aboutlines.h"
#include "diamonds/diamondcopy.h"
#include "diamonds/streamsview.h"
#include "files/wholefiles.h"
#include "fuzz/quiet.h"
#include "mainview/copycommands.h"
#include "mainview/layersview.h"
#include "mainview/monthcommand.h"
#include "mainview/printcommands.h"
#include "mainview/readouts.h"
#include "mainview/stepping.h"
#include "portdata/depthmatch.h"
#include "portdata/heightfiles.h"
#include "portdata/ownnotesjson.h"
#include "portdata/portscsv.h"
#include "portdata/recordfiles.h"
#include "portdata/userdepths.h"
#include "ports/harmonicedit.h"
#include "ports/portlist.h"
#include "ports/programsettings.h"
#include "ports/usernotes.h"
#include "session/loading.h"
#include "tides/readingscsv.h"
#include "world/landpicture.h"

namespace tarvane::fuzz {
namespace {

constexpr std::size_t portsinsample = 12;

std::string textof(std::span<const std::byte> bytes) {
    return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

std::span<const std::byte> bytesof(const std::string& text) {
    return std::as_bytes(std::span(text));
}

/// The program as far as it is no windows, started over the files of a folder.
struct Program {
    explicit Program(const std::string& folder) {
        quiet.folders.root = folder;
        session.folders = {folder, folder, folder, folder};
        session.conventions = {"DD/MM/YYYY", "/"};
        loadmainwindow(context);
    }

    QuietServices quiet;
    QuietSurface picture, bar, window;
    Session session;
    MainContext context{session, quiet.services(), {picture, bar, window, {100, 800, 5883, 3415}}};
};

/// A few commands as a user might give them, the dear ones seldom.
void command(MainContext& context, Random& random) {
    static constexpr void (*cheap[])(MainContext&) = {
        nextday,
        previousday,
        [](MainContext& on) { nextport(on); },
        [](MainContext& on) { previousport(on); },
        printcurve,
        printtenminutes,
        copydaystides,
        copydayssuntimes,
        togglelayers,
        [](MainContext& on) { picturemousemove(on.session, on.surfaces.picture, 14.2); },
        [](MainContext& on) { openconfiguration(on.session); },
        [](MainContext& on) { confirmoptions(on, openoptions(on.session)); }};
    static constexpr void (*dear[])(MainContext&) = {calculatemonth,
                                                     printmonth,
                                                     copymonthstides,
                                                     copymonthssuntimes,
                                                     [](MainContext& on) {
                                                         preparesunview(on.session);
                                                         calculatesun(on, portsuninput(on.session));
                                                         printsun(on);
                                                     },
                                                     [](MainContext& on) {
                                                         AdjustWorkspace workspace = openworkspace(on);
                                                         updatecalc(workspace, on);
                                                         understandplace(workspace, placetexts(workspace));
                                                     }};
    for (std::size_t times = 1 + below(random, 3); times > 0; --times)
        cheap[below(random, std::size(cheap))](context);
    if (below(random, 40) == 0) dear[below(random, std::size(dear))](context);
}

void edit(MainContext& context, Random& random) {
    HarmonicEdit editor = openeditor(context.session);
    if (!pickarea(context, editor, "UK.hc") || editor.portlist.empty()) return;
    if (!pickport(context, editor, static_cast<int>(below(random, editor.portlist.size())))) return;
    static constexpr bool (*changes[])(MainContext&, HarmonicEdit&) = {acceptchanges, addnewport, insertnewport,
                                                                       deletehighlighted};
    changes[below(random, std::size(changes))](context, editor);
    closeeditor(context, editor);
}

void readarea(const std::string& folder, Random& random) {
    const std::vector<std::byte> bytes = readwhole(folder + "/UK.hc");
    portscsvof(std::span(bytes).first(bytes.size() / harmonicrecordsize * harmonicrecordsize));
    Program program(folder);
    PortList list;
    loadportlist(list, folder + "/UK.hc");
    sortbyname(list);
    searchfromstart(list, "st");
    missingports(list);
    command(program.context, random);
    if (below(random, 8) == 0) edit(program.context, random);
}

void readdepths(const std::string& folder, Random& random) {
    Program program(folder);
    UserNotes notes = loadusernotes(program.context);
    if (!notes.rows.empty())
        pickusernotes(program.session.settings, notes, static_cast<int>(below(random, notes.rows.size())));
    enterusernotes(program.context, notes, notes.depth, notes.usernotes);
    matchnotes(program.context, notes);
    closeusernotes(program.context);
}

void readconfiguration(const std::string& folder, Random& random) {
    Program program(folder);
    command(program.context, random);
}

void readheightsfile(const std::string& folder, Random&) {
    const ObservedHeights heights = readheights(folder + "/creek.ht");
    if (!heights.fault.empty()) return;
    Program program(folder);
    AdjustWorkspace workspace = openworkspace(program.context);
    chooseheights(workspace, folder + "/creek.ht");
    updatecalc(workspace, program.context);
    QuietSurface picture;
    DrawAdjustCurve(workspace, intermediatecurve, picture);
    fittext(fitworkspace(workspace, program.context), heights.readings);
}

void readdiamondfile(const std::string& folder, Random& random) {
    Program program(folder);
    MainContext& context = program.context;
    StreamsView view = openstreams(context);
    if (!view.diamonds.empty()) choosediamond(context, view, static_cast<int>(below(random, view.diamonds.size())));
    streamtable(context, view);
    copystreams(context, view);
    DiamondCopy copy = opendiamonds(program.session);
    if (!picksourcefile(context, copy, "channel.l20") || copy.source.entries.empty()) return;
    if (!pickdiamond(context, copy, static_cast<int>(below(random, copy.source.entries.size())))) return;
    static constexpr bool (*changes[])(MainContext&, DiamondCopy&) = {amendhighlighted, addtosource, deletehighlighted};
    changes[below(random, std::size(changes))](context, copy);
}

void readtable(const std::string& folder, Random&) {
    const PortsTable table = readportscsv(wholetext(folder + "/ports.csv"));
    if (!table.fault) portscsvof(table.area);
}

void readreadings(const std::string& folder, Random&) {
    readingsof(wholetext(folder + "/readings.csv"));
}

/// What is told of a port by the notes, and a check that is kept among them.
void readownnotes(const std::string& folder, Random&) {
    const ProgramFolders folders{folder, folder, folder, folder};
    QuietServices quiet;
    const Services services = quiet.services();
    const AboutOf of = aboutof(folders, folder + "/UK.hc", 1);
    TableCheck check = of.check;
    const DateConventions conventions{"DD/MM/YYYY", "/"};
    const DateReading dates{conventions, services.locale, services.clock.now().today};
    for (const TableWater& water : pastedwaters(wholetext(ownportspath(folders)), dates, {}, 400))
        check.waters.push_back(water);
    sheettext(aboutsheet(of, services.clock.moment(), services.zones));
    keepcheck(folders, of.hcfile, of.port, of.number, check);
}

/// Past the sum, which no broken file gets by.
void readcoast(const std::string& folder, Random& random) {
    const std::vector<std::byte> bytes = readwhole(folder + "/coast.bin");
    decodecoast(bytes);
    const Coast coast = decodelevels(bytes);
    MapView view;
    resizeview(view, 300, 200);
    zoomview(view, static_cast<double>(1 + below(random, 1000)), {10, 10});
    QuietCanvas canvas;
    paintland(canvas, coast, view, coloursof(Lighting::day));
}

std::string areasample(const std::string& area) {
    return area.substr(0, portsinsample * harmonicrecordsize);
}

std::string depthssample(const std::string& area) {
    std::string sample;
    for (std::size_t i = 0; i < portsinsample; ++i) {
        const HarmonicRecord port = decodeharmonic(bytesof(area).subspan(i * harmonicrecordsize));
        UserDepthRecord record = newdepthrecord(port, static_cast<std::int16_t>(i + 1));
        record.UserDepth = static_cast<float>(i) / 4;
        sample += textof(encode(record));
    }
    return sample;
}

std::string configurationsample(const std::string&) {
    ConfigRecord record;
    record.hcfilepath = "UK.hc";
    record.portnumber = 3;
    record.outputoption = 3;
    record.draught = 1.9F;
    record.ukc = 0.5F;
    record.sortmode = 1;
    return textof(encode(record));
}

std::string heightssample(const std::string&) {
    std::string sample;
    for (int i = 0; i < 14; ++i) {
        const float reading[] = {6 + static_cast<float>(i) / 2, static_cast<float>((i * 7) % 11) / 2};
        sample += textof(std::as_bytes(std::span(reading)));
        sample += std::string(12, '\0') + std::string(heightrecordsize - 20, ' ');
    }
    return sample;
}

std::string diamondssample(const std::string&) {
    std::string sample;
    for (int i = 0; i < 5; ++i) {
        DiamondRecord diamond;
        diamond.DiamondLat = 50 + static_cast<float>(i) / 7;
        diamond.DiamondLong = -1 - static_cast<float>(i) / 3;
        diamond.DiamondID = std::string(1, static_cast<char>('A' + i));
        for (std::size_t hour = 0; hour < streamhours; ++hour)
            diamond.streams[hour] = {static_cast<float>(hour * 27), static_cast<float>(hour) / 4,
                                     static_cast<float>(hour) / 8};
        sample += textof(encode(diamond));
    }
    return sample;
}

std::string tablesample(const std::string& area) {
    return portscsvof(bytesof(areasample(area)));
}

/// Two levels of an island with a lake, on a grid of degrees.
std::string coastsample(const std::string&) {
    std::string sample;
    for (const double each : {-180.0, -90.0, 1.0, 1.0})
        sample += textof(std::as_bytes(std::span(&each, 1)));
    sample += '\2';
    for (const char tolerance : {'\0', '\x0e'}) {
        sample += {tolerance, '\2'};
        for (const char* ring :
             {"\x08\xf0\x02\xa0\x01\x14\x00\x00\x14\x13\x01", "\x07\xf4\x02\xa4\x01\x06\x01\x01\x06"})
            for (std::size_t i = 0; i < (*ring == 8 ? 11U : 9U); ++i)
                sample += ring[i];
    }
    return sample;
}

std::string readingssample(const std::string&) {
    std::string sample = "date,time,height\n";
    for (int hour = 6; hour < 20; ++hour)
        sample += "2026-07-14," + std::string(hour < 10 ? "0" : "") + std::to_string(hour) + ":30," +
                  std::to_string(hour % 7) + ".25\n";
    return sample;
}

std::string ownnotessample(const std::string& area) {
    const HarmonicRecord port = decodeharmonic(bytesof(area));
    const FitFigures fit{24, 1, 0.21, 0.04, -0.09, 12.3, "2026-03-01"};
    const OwnMade made{OwnHow::fitted, "2026-03-03", "a table", fit, markof(port)};
    OwnPorts ports;
    ports.areas["UK.hc"].push_back(
        {trimmedname(port),
         1,
         made,
         {TableClock::port, {{"2026-07-14", "06:12", "5.4", "high"}, {"", "12:20", "1", ""}}}});
    return ownportstext(ports);
}

constexpr Kind allkinds[] = {
    {"area", "UK.hc", areasample, mutatedbytes, readarea},
    {"depths", "TarvaneTides/UserDepths/UK.DEP", depthssample, mutatedbytes, readdepths},
    {"configuration", "TarvaneTides/TarTidesv9.cfg", configurationsample, mutatedbytes, readconfiguration},
    {"heights", "creek.ht", heightssample, mutatedbytes, readheightsfile},
    {"diamonds", "channel.l20", diamondssample, mutatedbytes, readdiamondfile},
    {"ports table", "ports.csv", tablesample, mutatedtext, readtable},
    {"readings", "readings.csv", readingssample, mutatedtext, readreadings},
    {"own ports", "TarvaneTides/Ports.json", ownnotessample, mutatedtext, readownnotes},
    {"coast", "coast.bin", coastsample, mutatedbytes, readcoast},
};

}  // namespace

std::span<const Kind> kinds() {
    return allkinds;
}

void furnish(const std::string& folder, const std::string& area) {
    for (const Kind& kind : allkinds)
        std::ofstream(folder + "/" + kind.filename, std::ios::binary) << kind.sample(area);
}

}  // namespace tarvane::fuzz
