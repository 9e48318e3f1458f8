// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/veskicon.h>

#include "emblemiconengine.h"
#include "mimeiconnames.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QThread>

namespace
{

constexpr int mostIcons = 4096;                 // themes have fewer; desktop entries may name any number of files
constexpr qint64 largestIconFile = 16 << 20;    // bytes
constexpr qint64 largestIconArea = 4096 * 4096; // pixels

// The icons that were looked up, the missing ones, too. The toolkit itself remembers a hundred.
class IconTable
{
public:
    QIcon icon(const QString &name);

private:
    struct Theme
    {
        QString name = QIcon::themeName();
        QString fallbackName = QIcon::fallbackThemeName();
        QStringList searchPaths = QIcon::themeSearchPaths();
        QStringList fallbackSearchPaths = QIcon::fallbackSearchPaths();

        bool operator==(const Theme &other) const
        {
            return name == other.name && fallbackName == other.fallbackName && searchPaths == other.searchPaths
                && fallbackSearchPaths == other.fallbackSearchPaths;
        }
    };

    static QIcon find(const QString &name);
    static QIcon fromFile(const QString &path);

    Theme m_theme; // that the icons are from
    QHash<QString, QIcon> m_icons;
};

QIcon IconTable::icon(const QString &name)
{
    const Theme theme;
    if (!(theme == m_theme) || m_icons.size() >= mostIcons) {
        m_icons.clear();
        m_theme = theme;
    }
    auto known = m_icons.constFind(name);
    if (known == m_icons.constEnd())
        known = m_icons.insert(name, find(name));
    return *known;
}

QIcon IconTable::find(const QString &name)
{
    if (name.isEmpty())
        return {};
    if (name.startsWith(QLatin1Char('/')))
        return fromFile(name);
    QIcon icon = QIcon::fromTheme(name, QIcon());
    const QString genericName = icon.isNull() ? genericMimeIconName(name) : QString();
    if (!genericName.isEmpty())
        icon = QIcon::fromTheme(genericName, QIcon());
    static const QStringList extensions{QStringLiteral(".png"), QStringLiteral(".svg"), QStringLiteral(".xpm")};
    for (const QString &extension : extensions) { // old desktop entries name the file
        if (icon.isNull() && name.endsWith(extension))
            icon = QIcon::fromTheme(name.chopped(extension.size()), QIcon());
    }
    return icon;
}

// Whoever wrote the desktop entry chose the file, so it may be anything: a FIFO to wait for, an image of terabytes.
QIcon IconTable::fromFile(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() > largestIconFile)
        return {};
    QImageReader reader(path);
    const QSize size = reader.size();
    const bool isSensible = reader.canRead() && qint64(size.width()) * size.height() <= largestIconArea;
    return isSensible ? QIcon(path) : QIcon();
}

QIcon lookUp(const QString &name)
{
    Q_ASSERT_X(!qApp || QThread::currentThread() == qApp->thread(), "VeskIcon", "icons belong to the GUI thread");
    static IconTable *const table = new IconTable; // never deleted: pixmaps cannot be freed after the application
    return table->icon(name);
}

} // namespace

QIcon VeskIcon::fromTheme(const QString &name, const QMap<Qt::Corner, QString> &emblems, const QIcon &fallback)
{
    const QIcon icon = lookUp(name);
    return withEmblems(icon.isNull() ? fallback : icon, emblems);
}

QIcon VeskIcon::withEmblems(const QIcon &icon, const QMap<Qt::Corner, QString> &emblems)
{
    if (icon.isNull())
        return icon;
    QMap<Qt::Corner, QIcon> icons;
    for (auto emblem = emblems.cbegin(); emblem != emblems.cend(); ++emblem) {
        const QIcon found = lookUp(*emblem);
        if (!found.isNull())
            icons.insert(emblem.key(), found);
    }
    return icons.isEmpty() ? icon : QIcon(new EmblemIconEngine(icon, icons));
}
