#include "portdata/areaedits.h"

#include <algorithm>
#include <span>
#include <vector>

#include "portdata/recordfiles.h"

namespace tarvane {
namespace {

/// An area file's records in memory, written by number as in a random-access file: a gap is filled with zeros.
class Records {
  public:
    explicit Records(const std::string& path = {}) {
        if (path.empty()) return;
        const std::vector<std::byte> bytes = readwhole(path);
        records.resize(static_cast<std::size_t>(portcount(path)));
        for (std::size_t i = 0; i < records.size(); ++i) {
            const auto rest = std::span(bytes).subspan(i * harmonicrecordsize);
            std::copy_n(rest.begin(), std::min(rest.size(), harmonicrecordsize), records[i].begin());
        }
    }

    std::size_t count() const { return records.size(); }
    const HarmonicBytes& at(std::size_t number) const { return records.at(number - 1); }

    void put(std::size_t number, const HarmonicBytes& record) {
        if (records.size() < number) records.resize(number, HarmonicBytes{});
        records[number - 1] = record;
    }

    std::vector<std::byte> bytes() const {
        std::vector<std::byte> all;
        for (const HarmonicBytes& record : records)
            all.insert(all.end(), record.begin(), record.end());
        return all;
    }

  private:
    std::vector<HarmonicBytes> records;
};

/// Writes the records over the area file, the file as it was being kept before that.
WriteOutcome replacearea(AreaBackups& backups, const std::string& path, const Records& records) {
    const WriteOutcome kept = keepbackup(backups, path);
    return kept ? replacefile(path, records.bytes()) : kept;
}

AreaEdit finished(const std::string& path, const WriteOutcome& written, std::size_t newport) {
    return {written, portcount(path), written ? static_cast<std::int16_t>(newport) : std::int16_t{0}};
}

/// The scratch file first, then the area file from the same records.
AreaEdit throughscratch(AreaBackups& backups, const std::string& path, const std::string& scratch,
                        const Records& records, std::size_t newport) {
    WriteOutcome written = replacefile(scratch, records.bytes());
    if (written) written = replacearea(backups, path, records);
    return finished(path, written, newport);
}

}  // namespace

WriteOutcome keepbackup(AreaBackups& backups, const std::string& path) {
    if (backups.kept.contains(path) || !canopen(path)) return {};
    const WriteOutcome kept = replacefile(path + ".bak", readwhole(path));
    if (kept) backups.kept.insert(path);
    return kept;
}

AreaEdit changeport(AreaBackups& backups, const std::string& path, std::int16_t number, const HarmonicBytes& record) {
    Records records(path);
    records.put(static_cast<std::size_t>(number), record);
    return finished(path, replacearea(backups, path, records), static_cast<std::size_t>(number));
}

AreaEdit addport(AreaBackups& backups, const std::string& path, const HarmonicBytes& record) {
    Records records(path);
    records.put(records.count() + 1, record);
    return finished(path, replacearea(backups, path, records), records.count());
}

AreaEdit deleteport(AreaBackups& backups, const std::string& path, const std::string& scratch, std::int16_t number) {
    const Records old(path);
    Records work;
    for (std::size_t i = 1; i <= old.count(); ++i)
        if (i != static_cast<std::size_t>(number)) work.put(work.count() + 1, old.at(i));
    return throughscratch(backups, path, scratch, work, 0);
}

AreaEdit insertport(AreaBackups& backups, const std::string& path, const std::string& scratch, std::int16_t number,
                    const HarmonicBytes& record) {
    const Records old(path);
    const auto p = static_cast<std::size_t>(number);
    Records work;
    for (std::size_t i = 1; i <= p; ++i)
        work.put(i, old.at(i));
    // kept: the new record goes one place too far, and the copying that begins with p again writes over it
    work.put(p + 2, record);
    for (std::size_t i = p; i <= old.count(); ++i)
        work.put(i + 1, old.at(i));
    return throughscratch(backups, path, scratch, work, p == old.count() ? p + 2 : 0);
}

AreaEdit appendports(AreaBackups& backups, const std::string& path, const std::string& from) {
    Records records(path);
    const Records added(from);
    for (std::size_t i = 1; i <= added.count(); ++i)
        records.put(records.count() + 1, added.at(i));
    return finished(path, replacearea(backups, path, records), added.count() ? records.count() : 0);
}

}  // namespace tarvane
