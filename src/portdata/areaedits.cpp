#include "portdata/areaedits.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <span>
#include <vector>

#include "portdata/recordfiles.h"
#include "text/numbers.h"

namespace tarvane {
namespace {

WriteOutcome refusal(int code) {
    return {std::error_code(code, std::generic_category())};
}

/// A file's bytes, or why it can't be read; one that isn't there has none.
std::optional<std::vector<std::byte>> bytesof(const std::string& path, WriteOutcome& outcome) {
    errno = 0;
    auto bytes = wholefile(path);
    if (!bytes) outcome = refusal(errno ? errno : EIO);
    return bytes;
}

/// An area file's records in memory, written by number as in a random-access file: a gap is filled with zeros.
class Records {
  public:
    Records() = default;
    explicit Records(const std::string& path) {
        const auto bytes = bytesof(path, readable);
        if (!bytes) return;
        // What wouldn't be moved along must not be cut off.
        if (bytes->size() / harmonicrecordsize > mostports) readable = refusal(EFBIG);
        const double ports = static_cast<double>(bytes->size()) / static_cast<double>(harmonicrecordsize);
        records.resize(static_cast<std::size_t>(cint(ports)));
        for (std::size_t i = 0; i < records.size(); ++i) {
            const auto rest = std::span(*bytes).subspan(i * harmonicrecordsize);
            std::copy_n(rest.begin(), std::min(rest.size(), harmonicrecordsize), records[i].begin());
        }
    }

    std::size_t count() const { return records.size(); }
    bool has(std::int16_t number) const { return number >= 1 && static_cast<std::size_t>(number) <= records.size(); }
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

    WriteOutcome readable;  ///< an error when the file is there and can't be taken

  private:
    std::vector<HarmonicBytes> records;
};

/// Whether port `number` of a file can be worked on.
WriteOutcome workable(const Records& records, std::int16_t number) {
    if (!records.readable) return records.readable;
    return records.has(number) ? WriteOutcome{} : refusal(ERANGE);
}

/// Writes the records over the area file, the file as it was being kept before that.
WriteOutcome replacearea(AreaBackups& backups, const std::string& path, const Records& records) {
    if (records.count() > mostports) return refusal(EFBIG);
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
    if (backups.kept.contains(path)) return {};
    WriteOutcome kept;
    const auto bytes = bytesof(path, kept);
    if (!bytes || !canopen(path)) return kept;
    kept = replacefile(path + ".bak", *bytes);
    if (kept) backups.kept.insert(path);
    return kept;
}

AreaEdit changeport(AreaBackups& backups, const std::string& path, std::int16_t number, const HarmonicBytes& record) {
    Records records(path);
    if (const WriteOutcome refused = workable(records, number); !refused) return finished(path, refused, 0);
    records.put(static_cast<std::size_t>(number), record);
    return finished(path, replacearea(backups, path, records), static_cast<std::size_t>(number));
}

AreaEdit addport(AreaBackups& backups, const std::string& path, const HarmonicBytes& record) {
    Records records(path);
    if (!records.readable) return finished(path, records.readable, 0);
    records.put(records.count() + 1, record);
    return finished(path, replacearea(backups, path, records), records.count());
}

AreaEdit deleteport(AreaBackups& backups, const std::string& path, const std::string& scratch, std::int16_t number) {
    const Records old(path);
    if (const WriteOutcome refused = workable(old, number); !refused) return finished(path, refused, 0);
    Records work;
    for (std::size_t i = 1; i <= old.count(); ++i)
        if (i != static_cast<std::size_t>(number)) work.put(work.count() + 1, old.at(i));
    return throughscratch(backups, path, scratch, work, 0);
}

AreaEdit insertport(AreaBackups& backups, const std::string& path, const std::string& scratch, std::int16_t number,
                    const HarmonicBytes& record) {
    const Records old(path);
    if (const WriteOutcome refused = workable(old, number); !refused) return finished(path, refused, 0);
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
    for (const Records* file : {&added, static_cast<const Records*>(&records)})
        if (!file->readable) return finished(path, file->readable, 0);
    for (std::size_t i = 1; i <= added.count(); ++i)
        records.put(records.count() + 1, added.at(i));
    return finished(path, replacearea(backups, path, records), added.count() ? records.count() : 0);
}

AreaEdit gatherport(const std::string& scratch, const std::string& from, std::int16_t number) {
    Records gathered(scratch);
    const Records source(from);
    if (const WriteOutcome refused = workable(source, number); !refused) return finished(scratch, refused, 0);
    if (!gathered.readable) return finished(scratch, gathered.readable, 0);
    gathered.put(gathered.count() + 1, source.at(static_cast<std::size_t>(number)));
    if (gathered.count() > mostports) return finished(scratch, refusal(EFBIG), 0);
    return finished(scratch, replacefile(scratch, gathered.bytes()), gathered.count());
}

}  // namespace tarvane
