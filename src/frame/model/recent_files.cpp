#include "frame/model/recent_files.h"

#include "forms/store/settings_store.h"

namespace kestrova {

void RecentFiles::load(const SettingsStore& store)
{
    entries_.clear();
    for (int i = 1; i <= kPlacesRead; ++i) {
        const std::string title = store.get("MRU", "Title" + std::to_string(i), "");
        if (title.empty())
            break;
        entries_.push_back({title, store.get("MRU", "File" + std::to_string(i), "")});
    }
}

void RecentFiles::save(SettingsStore& store) const
{
    const int count = static_cast<int>(entries_.size());
    for (int i = 1; i <= count; ++i) {
        store.save("MRU", "Title" + std::to_string(i), entries_[i - 1].title);
        store.save("MRU", "File" + std::to_string(i), entries_[i - 1].path);
    }
    for (int i = count + 1; i <= kPlacesRead; ++i) {
        store.remove("MRU", "Title" + std::to_string(i));
        store.remove("MRU", "File" + std::to_string(i));
    }
}

void RecentFiles::add(const std::string& title, const std::string& path, SettingsStore& store)
{
    entries_.insert(entries_.begin(), {title, path});
    for (size_t i = entries_.size() - 1; i >= 1; --i)
        if (entries_[i].path == path)
            entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(i));
    save(store);
}

std::string RecentFiles::menuCaption(int place) const
{
    return "&" + std::to_string(place) + " " + entries_.at(static_cast<size_t>(place - 1)).title;
}

} // namespace kestrova
