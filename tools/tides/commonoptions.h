// What several command lines of `tides` take alike: the area, the port, the day, summer time and the form of the
// result. Must not know one of them.
#pragma once

#include "tides/options.h"

namespace tarvane {

template <class Options>
std::string takearea(const std::string& value, Options& options) {
    options.area = value;
    return "";
}

template <class Options>
std::string takeport(const std::string& value, Options& options) {
    options.port = argumenttext(value);
    return "";
}

template <class Options>
std::string takedate(const std::string& value, Options& options) {
    options.date = parseisodate(value);
    return options.date ? "" : inquotes(value) + " is no date; write a day that exists as YYYY-MM-DD";
}

template <class Options>
std::string takesummer(const std::string& value, Options& options) {
    options.summer = value == "on";
    return value == "on" || value == "off" ? "" : "--summer takes on or off, not " + inquotes(value);
}

template <class Options>
std::string takeformat(const std::string& value, Options& options) {
    return parseformat(value, options.format);
}

}  // namespace tarvane
