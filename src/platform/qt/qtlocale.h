// The date conventions of one locale. Order and separator of the short date are the locale's; blanks, native digits and
// words in its pattern are reduced to plain numbers. Must not take part in the probe's decisions.
#pragma once

#include <QLocale>

#include "platform/locale.h"

namespace tarvane {

/// The locale in which this system writes dates. Where none is set ("C", "POSIX") it is British English.
QLocale systemdatelocale();

class QtLocale : public Locale {
  public:
    explicit QtLocale(const QLocale& locale = systemdatelocale());

    int systemid() const override;
    std::optional<std::string> info(int lcid, int lctype) const override;
    std::string shortdate(std::chrono::sys_days date) const override;

    /// A year of one or two digits means 1930 to 2029.
    std::optional<std::chrono::sys_days> parsedate(std::string_view text) const override;

    std::string monthname(int month) const override;
    std::string monthabbreviation(int month) const override;
    std::string dayname(int weekday) const override;

    /// In the languages that the probe knows, as short as its words; in any other the system's.
    std::string dayabbreviation(int weekday) const override;
    std::string dayletter(int weekday) const override;

  private:
    QLocale locale;   ///< names and long dates
    QString pattern;  ///< the short date, "dd/MM/yyyy"
    QString order;    ///< "DMY", "MDY", "YMD" ...
};

}  // namespace tarvane
