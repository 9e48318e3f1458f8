// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskuidesktopentry.h>

#include <KConfig>
#include <KConfigGroup>

#include <QFile>
#include <QSharedData>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr qint64 largestFile = 1 << 20; // bytes; real desktop entries have a few thousand

// Tells without waiting: opening a FIFO for reading would otherwise last until somebody writes into it.
bool isReadableDesktopFile(const QString &path)
{
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return false;
    struct stat facts = {};
    const bool readable = fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_size <= largestFile;
    close(descriptor);
    return readable;
}

} // namespace

class VeskUIDesktopEntryData : public QSharedData
{
public:
    QString filePath;
    QMap<QString, QString> values; // of the main group, localized, escapes resolved
    bool valid = false;
};

VeskUIDesktopEntry::VeskUIDesktopEntry()
    : m_data(new VeskUIDesktopEntryData)
{
}

VeskUIDesktopEntry::VeskUIDesktopEntry(const QString &filePath)
    : VeskUIDesktopEntry()
{
    m_data->filePath = filePath;
    load();
}

VeskUIDesktopEntry::VeskUIDesktopEntry(const VeskUIDesktopEntry &other) = default;
VeskUIDesktopEntry &VeskUIDesktopEntry::operator=(const VeskUIDesktopEntry &other) = default;
VeskUIDesktopEntry::~VeskUIDesktopEntry() = default;

bool VeskUIDesktopEntry::load()
{
    m_data->values.clear();
    m_data->valid = false;
    if (!isReadableDesktopFile(m_data->filePath))
        return false;
    const KConfig file(m_data->filePath, KConfig::SimpleConfig);
    m_data->valid = file.hasGroup("Desktop Entry");
    if (m_data->valid)
        m_data->values = file.group("Desktop Entry").entryMap();
    return m_data->valid;
}

bool VeskUIDesktopEntry::isValid() const
{
    return m_data->valid;
}

bool VeskUIDesktopEntry::isDisplayable() const
{
    return isValid();
}

bool VeskUIDesktopEntry::isSuitable() const
{
    return isValid();
}

bool VeskUIDesktopEntry::getTerminal() const
{
    return getValue(QStringLiteral("Terminal")) == QLatin1String("true");
}

QString VeskUIDesktopEntry::getFilePath() const
{
    return m_data->filePath;
}

QString VeskUIDesktopEntry::getType() const
{
    return getValue(QStringLiteral("Type"));
}

QString VeskUIDesktopEntry::getExec() const
{
    return getValue(QStringLiteral("Exec"));
}

QString VeskUIDesktopEntry::getTryExec() const
{
    return getValue(QStringLiteral("TryExec"));
}

QString VeskUIDesktopEntry::getUrl() const
{
    return getValue(QStringLiteral("URL"));
}

QString VeskUIDesktopEntry::getBestAvailableName() const
{
    return getValue(QStringLiteral("Name"));
}

QString VeskUIDesktopEntry::getBestAvailableGenericName() const
{
    return getValue(QStringLiteral("GenericName"));
}

QString VeskUIDesktopEntry::getBestAvailableComment() const
{
    return getValue(QStringLiteral("Comment"));
}

QString VeskUIDesktopEntry::getBestAvailableIcon() const
{
    return getValue(QStringLiteral("Icon"));
}

QString VeskUIDesktopEntry::getValue(const QString &key) const
{
    return m_data->values.value(key);
}

QStringList VeskUIDesktopEntry::getAllAppDesktopEntrySearchPaths()
{
    return QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
}
