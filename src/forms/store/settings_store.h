#pragma once
// The per-user settings store: text values addressed by section and key, in
// an INI file of the user's configuration folder under the application name
// "Kestrova". Everything is read and written as text. Each change is written
// to the file at once. A file that cannot be written (a full disk, a folder
// without rights) keeps its old content and is reported once in a run; the
// values stay for the run and every later change writes them all again.

#include <QString>

#include <functional>
#include <memory>
#include <string>

class QSettings;

namespace kestrova {

class SettingsStore {
public:
    // The store at an explicit INI path (tests, or a portable set-up).
    explicit SettingsStore(const QString& iniPath);
    ~SettingsStore();
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;

    // The user's own store.
    static SettingsStore& user();
    // Points user() at another file; tests use it to keep the user's store untouched.
    static void useFile(const QString& iniPath);

    std::string get(const std::string& section, const std::string& key, const std::string& defaultText) const;
    // An integer; a text that is none (or beyond the integer range) gives the default.
    int getInteger(const std::string& section, const std::string& key, int defaultValue) const;
    // An index into a list of `count` entries; anything else gives the default.
    int getIndex(const std::string& section, const std::string& key, int defaultValue, int count) const;
    void save(const std::string& section, const std::string& key, const std::string& text);
    void remove(const std::string& section, const std::string& key);
    // Writes what is not yet in the file; false when a write of this run failed.
    bool sync();

    // Told the file's name when a write fails; the frame shows it to the user.
    using WriteFailure = std::function<void(const std::string& file)>;
    void setWriteFailureHandler(WriteFailure handler) { onWriteFailure_ = std::move(handler); }

    QString fileName() const;

private:
    std::unique_ptr<QSettings> settings_;
    WriteFailure onWriteFailure_;
    bool failureReported_ = false;
};

} // namespace kestrova
