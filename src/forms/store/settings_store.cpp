#include "forms/store/settings_store.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace kestrova {

namespace {

QString defaultPath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir(folder).filePath("Kestrova/Kestrova.ini");
}

std::unique_ptr<SettingsStore>& userStore()
{
    static std::unique_ptr<SettingsStore> store;
    return store;
}

QString keyPath(const std::string& section, const std::string& key)
{
    return QString::fromStdString(section) + '/' + QString::fromStdString(key);
}

} // namespace

SettingsStore::SettingsStore(const QString& iniPath)
    : settings_(std::make_unique<QSettings>(iniPath, QSettings::IniFormat))
{
}

SettingsStore::~SettingsStore() = default;

SettingsStore& SettingsStore::user()
{
    auto& store = userStore();
    if (!store)
        store = std::make_unique<SettingsStore>(defaultPath());
    return *store;
}

void SettingsStore::useFile(const QString& iniPath)
{
    userStore() = std::make_unique<SettingsStore>(iniPath);
}

std::string SettingsStore::get(const std::string& section, const std::string& key, const std::string& defaultText) const
{
    const QVariant value = settings_->value(keyPath(section, key));
    return value.isValid() ? value.toString().toStdString() : defaultText;
}

int SettingsStore::getInteger(const std::string& section, const std::string& key, int defaultValue) const
{
    bool ok = false;
    const int value = QString::fromStdString(get(section, key, std::to_string(defaultValue))).trimmed().toInt(&ok);
    return ok ? value : defaultValue;
}

int SettingsStore::getIndex(const std::string& section, const std::string& key, int defaultValue, int count) const
{
    const int value = getInteger(section, key, defaultValue);
    return value >= 0 && value < count ? value : defaultValue;
}

void SettingsStore::save(const std::string& section, const std::string& key, const std::string& text)
{
    settings_->setValue(keyPath(section, key), QString::fromStdString(text));
    sync();
}

void SettingsStore::remove(const std::string& section, const std::string& key)
{
    settings_->remove(keyPath(section, key));
    sync();
}

bool SettingsStore::sync()
{
    settings_->sync();
    // QSettings keeps the first error of its life: a failure is told once.
    const bool written = settings_->status() == QSettings::NoError;
    if (!written && !failureReported_) {
        failureReported_ = true;
        if (onWriteFailure_)
            onWriteFailure_(fileName().toStdString());
    }
    return written;
}

QString SettingsStore::fileName() const
{
    return settings_->fileName();
}

} // namespace kestrova
