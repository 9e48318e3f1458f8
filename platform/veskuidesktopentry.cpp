// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskuidesktopentry.h>

#include "smallfile.h"

#include <KConfig>
#include <KConfigGroup>

#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSharedData>
#include <QStandardPaths>

#include <cstring>

namespace
{

constexpr qint64 largestFile = 1 << 20; // bytes; real desktop entries have a few thousand
constexpr int mostOddities = 20;
const char mainGroup[] = "Desktop Entry";

int unknownEscapes(const QByteArray &line)
{
    int count = 0;
    for (int at = line.indexOf('\\'); at >= 0 && at + 1 < line.size(); at = line.indexOf('\\', at + 2))
        count += strchr("sntr\\;,x", line.at(at + 1)) ? 0 : 1;
    return count;
}

// The parser warns of each line and each escape that it does not know, which a file that is no desktop entry at all
// may have a hundred thousand of.
bool looksLikeDesktopEntry(const QByteArray &content)
{
    int oddities = 0;
    for (int start = 0; start < content.size() && oddities <= mostOddities;) {
        int end = content.indexOf('\n', start);
        if (end < 0)
            end = content.size();
        const QByteArray line = QByteArray::fromRawData(content.constData() + start, end - start).trimmed();
        if (line.startsWith('['))
            oddities += line.endsWith(']') ? 0 : 1;
        else if (!line.isEmpty() && !line.startsWith('#'))
            oddities += line.indexOf('=') > 0 ? unknownEscapes(line) : 1;
        start = end + 1;
    }
    return oddities <= mostOddities;
}

bool isRegularDesktopEntry(const QString &path)
{
    QByteArray content;
    return readSmallFile(QFile::encodeName(path), largestFile, &content) && looksLikeDesktopEntry(content);
}

} // namespace

class VeskUIDesktopEntryData : public QSharedData
{
public:
    void read();
    void copyValues(const KConfigGroup &group);
    bool isShownHere() const;

    QString filePath;
    QMap<QString, QString> values; // of the main group: localized, escapes resolved
    QStringList onlyShowIn;
    QStringList notShowIn;
    bool valid = false;
    bool noDisplay = false;
    bool hidden = false;
    bool terminal = false;
};

void VeskUIDesktopEntryData::read()
{
    if (filePath.isEmpty() || !isRegularDesktopEntry(filePath))
        return;
    // Just this file: no global settings below it and no look-up of relative names among the configuration.
    const KConfig file(QFileInfo(filePath).absoluteFilePath(), KConfig::SimpleConfig);
    if (file.hasGroup(mainGroup))
        copyValues(file.group(mainGroup));
}

void VeskUIDesktopEntryData::copyValues(const KConfigGroup &group)
{
    valid = true;
    values = group.entryMap();
    onlyShowIn = group.readXdgListEntry("OnlyShowIn");
    notShowIn = group.readXdgListEntry("NotShowIn");
    noDisplay = group.readEntry("NoDisplay", false);
    hidden = group.readEntry("Hidden", false);
    terminal = group.readEntry("Terminal", false);
}

// The first desktop of XDG_CURRENT_DESKTOP that the entry names decides.
bool VeskUIDesktopEntryData::isShownHere() const
{
    const QStringList desktops =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (const QString &desktop : desktops) {
        if (onlyShowIn.contains(desktop))
            return true;
        if (notShowIn.contains(desktop))
            return false;
    }
    return onlyShowIn.isEmpty();
}

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
    QSharedDataPointer<VeskUIDesktopEntryData> fresh(new VeskUIDesktopEntryData);
    fresh->filePath = m_data->filePath;
    fresh->read();
    m_data.swap(fresh);
    return isValid();
}

bool VeskUIDesktopEntry::isValid() const
{
    return m_data->valid;
}

bool VeskUIDesktopEntry::isDisplayable() const
{
    return m_data->valid && !m_data->noDisplay && !m_data->hidden && m_data->isShownHere();
}

bool VeskUIDesktopEntry::isSuitable() const
{
    const QString program = getTryExec();
    return m_data->valid && m_data->isShownHere()
        && (program.isEmpty() || !QStandardPaths::findExecutable(program).isEmpty());
}

bool VeskUIDesktopEntry::getTerminal() const
{
    return m_data->terminal;
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
