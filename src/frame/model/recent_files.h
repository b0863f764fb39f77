#pragma once
// The recent-files list: titles and full paths, most recent first. Four
// places are read at start, five menu entries show them, and one run may hold
// more; what is written beyond place 4 is not read back.

#include <string>
#include <vector>

namespace kestrova {

class SettingsStore;

struct RecentFile {
    std::string title;
    std::string path;
};

class RecentFiles {
public:
    static constexpr int kPlacesRead = 4;
    static constexpr int kMenuPlaces = 5;

    void load(const SettingsStore& store);
    void save(SettingsStore& store) const;
    // Puts the file first; a file is never listed twice.
    void add(const std::string& title, const std::string& path, SettingsStore& store);

    const std::vector<RecentFile>& entries() const { return entries_; }
    // The caption of menu place i (1 based): "&1 title".
    std::string menuCaption(int place) const;

private:
    std::vector<RecentFile> entries_;
};

} // namespace kestrova
