#include "killtrial/writer.h"

#include <QGuiApplication>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "files/wholefiles.h"
#include "killtrial/foretelling.h"
#include "killtrial/otheredits.h"
#include "portdata/areaedits.h"
#include "portdata/depthmatch.h"
#include "portdata/heightfiles.h"
#include "portdata/recordfiles.h"

namespace tarvane::killtrial {
namespace {

constexpr std::size_t fewestports = 60, mostports = 120;

class Writer {
  public:
    Writer(const std::string& in, unsigned seed) : trial(in, seed) {}

    /// One edit; false when it didn't come out as foretold.
    bool edit() {
        switch (trial.below(11)) {
            case 0:
                return deleteone();
            case 1:
                return insertone();
            case 2:
                return addone();
            case 3:
                return changeone();
            case 4:
                return enterdepth();
            case 5:
                return match();
            case 6:
                return saveheights();
            case 7:
                return changesettings(trial);
            case 8:
                return changediamonds(trial, backups);
            case 9:
                return exporttable(trial);
            default:
                return printpage(trial);
        }
    }

  private:
    using Records = std::vector<std::string>;

    std::string path(const char* name) const { return trial.path(name); }
    std::string textin(const char* name) const { return wholetext(path(name)); }

    std::int16_t anynumber(std::size_t count) { return static_cast<std::int16_t>(1 + trial.below(count)); }

    Records area() const {
        const std::string text = textin(areaname);
        Records records;
        for (std::size_t at = 0; at < text.size(); at += harmonicrecordsize)
            records.push_back(text.substr(at, harmonicrecordsize));
        return records;
    }

    HarmonicBytes newport() {
        HarmonicRecord port = readport(path(areaname), 1);
        port.PortName = "Port " + std::to_string(trial.below(1000000));
        port.Z0 = static_cast<float>(trial.below(900)) / 100;
        return encode(port);
    }

    /// An edit of the area file to `after`, by way of the scratch file or not.
    template <class Act>
    bool performarea(const Records& after, bool byscratch, Act act) {
        std::string text;
        for (const std::string& record : after)
            text += record;
        std::vector<Change> changes;
        if (byscratch) changes.push_back(trial.changed(scratchname, text));
        if (!backups.kept.contains(path(areaname))) changes.push_back(trial.changed(areabackup, textin(areaname)));
        changes.push_back(trial.changed(areaname, text));
        return trial.perform(changes, [&] { return static_cast<bool>(act().written); });
    }

    bool deleteone() {
        Records records = area();
        if (records.size() < fewestports) return addone();
        const std::int16_t number = anynumber(records.size());
        records.erase(records.begin() + (number - 1));
        return performarea(records, true,
                           [&] { return deleteport(backups, path(areaname), path(scratchname), number); });
    }

    /// As the insertion is told: port `number` twice, the new one behind them when that is the last.
    bool insertone() {
        Records records = area();
        if (records.size() > mostports) return deleteone();
        const std::int16_t number =
            trial.below(3) == 0 ? static_cast<std::int16_t>(records.size()) : anynumber(records.size());
        const HarmonicBytes port = newport();
        const bool last = static_cast<std::size_t>(number) == records.size();
        records.insert(records.begin() + number, records[static_cast<std::size_t>(number) - 1]);
        if (last) records.push_back(textof(port));
        return performarea(records, true,
                           [&] { return insertport(backups, path(areaname), path(scratchname), number, port); });
    }

    bool addone() {
        Records records = area();
        const HarmonicBytes port = newport();
        records.push_back(textof(port));
        return performarea(records, false, [&] { return addport(backups, path(areaname), port); });
    }

    bool changeone() {
        Records records = area();
        const std::int16_t number = anynumber(records.size());
        const HarmonicBytes port = newport();
        records[static_cast<std::size_t>(number) - 1] = textof(port);
        return performarea(records, false, [&] { return changeport(backups, path(areaname), number, port); });
    }

    bool enterdepth() {
        std::string text = textin(depthsname);
        const std::int16_t number = anynumber(mostports);
        const std::size_t offset = static_cast<std::size_t>(number - 1) * userdepthrecordsize;
        UserDepthRecord record = readdepth(path(depthsname), number);
        if (record.DepthPortName.empty()) record.DepthPortName = readport(path(areaname), number).PortName;
        record.UserDepth = static_cast<float>(trial.below(100)) / 10;
        record.Notes = "Entered " + std::to_string(trial.below(1000));
        if (text.size() < offset + userdepthrecordsize) text.resize(offset + userdepthrecordsize);
        text.replace(offset, userdepthrecordsize, textof(encode(record)));
        return trial.perform({trial.changed(depthsname, text)},
                             [&] { return writedepth(path(depthsname), number, record); });
    }

    bool match() {
        const DepthMatch found = matchdepths(path(areaname), path(depthsname));
        if (found.matched.empty() || stateoffile(path(depthsname)) == "-") return enterdepth();
        return trial.perform(
            {trial.changed(depthsbackup, textin(depthsname)), trial.changed(depthsname, textof(found.matched))},
            [&] { return static_cast<bool>(writematched(path(depthsname), found)); });
    }

    bool saveheights() {
        std::vector<HeightRecord> readings(10 + trial.below(30));
        std::string text;
        for (HeightRecord& each : readings) {
            each = {static_cast<float>(trial.below(240)) / 10, static_cast<float>(trial.below(800)) / 100};
            text.append(reinterpret_cast<const char*>(&each.obstime), 4);
            text.append(reinterpret_cast<const char*>(&each.obsheight), 4);
            text += std::string(12, '\0') + std::string(35, ' ');
        }
        const std::string old = textin(heightsname);
        if (old.size() > text.size()) text += old.substr(text.size());
        return trial.perform({trial.changed(heightsname, text)},
                             [&] { return static_cast<bool>(writeheights(path(heightsname), readings).written); });
    }

    Foretelling trial;
    AreaBackups backups;
};

}  // namespace

int runwriter(const std::string& folder, unsigned seed) {
    int arguments = 1;
    char name[] = "killtrial";
    char* argument[] = {name, nullptr};
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("XDG_RUNTIME_DIR", folder.c_str(), 0);
    const QGuiApplication application(arguments, argument);
    Writer writer(folder, seed);
    const auto start = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - start < std::chrono::minutes(1)) {
        if (writer.edit()) continue;
        std::fprintf(stderr, "killtrial: an edit failed or left something else than was foretold\n");
        return 1;
    }
    return 0;
}

}  // namespace tarvane::killtrial
