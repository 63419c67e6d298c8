// The members of a JSON object, taken one by one, for files that the program keeps for the user. Must not read files.
#pragma once

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <string>

namespace tarvane {

/// Takes the members of an object and leaves in `whole`, by the time that it goes, whether each was what it should be
/// and none was left over.
class JsonMembers {
  public:
    using json = nlohmann::json;

    JsonMembers(const json& object, bool& whole) : object_(object), whole_(whole) {}
    ~JsonMembers() { whole_ = whole_ && object_.is_object() && taken_ == object_.size(); }
    JsonMembers(const JsonMembers&) = delete;
    JsonMembers& operator=(const JsonMembers&) = delete;

    /// Null when there is none. Each is asked for once.
    const json* at(const char* name) const {
        const auto found = object_.is_object() ? object_.find(name) : object_.end();
        if (found == object_.end()) return nullptr;
        ++taken_;
        return &*found;
    }

    void take(const char* name, std::string& text) const {
        const json* value = at(name);
        if (value && value->is_string()) text = value->get<std::string>();
        whole_ = whole_ && (!value || value->is_string());
    }

    void take(const char* name, bool& is) const {
        const json* value = at(name);
        if (value && value->is_boolean()) is = value->get<bool>();
        whole_ = whole_ && (!value || value->is_boolean());
    }

    void take(const char* name, double& number) const {
        const json* value = at(name);
        const bool good = value && value->is_number() && std::isfinite(value->get<double>());
        if (good) number = value->get<double>();
        whole_ = whole_ && (!value || good);
    }

    void take(const char* name, int& number) const {
        constexpr double most = 1e6;
        double read = number;
        take(name, read);
        if (std::abs(read) <= most)
            number = static_cast<int>(read);
        else
            whole_ = false;
    }

    /// One of some words, as its place among them.
    template <typename Choice, typename Words>
    void take(const char* name, const Words& words, Choice& choice) const {
        std::string word = words[static_cast<std::size_t>(choice)];
        take(name, word);
        const auto place = std::find(words.begin(), words.end(), word);
        if (place == words.end())
            whole_ = false;
        else
            choice = static_cast<Choice>(place - words.begin());
    }

    /// Every element of a list.
    template <typename Act>
    void each(const char* name, Act act) const {
        const json* list = at(name);
        whole_ = whole_ && (!list || list->is_array());
        if (list && list->is_array())
            for (const json& element : *list)
                act(element);
    }

    bool& whole() const { return whole_; }

  private:
    const json& object_;
    bool& whole_;
    mutable std::size_t taken_ = 0;
};

}  // namespace tarvane
