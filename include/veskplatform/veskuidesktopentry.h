// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/export.h>

#include <QSharedDataPointer>
#include <QString>
#include <QStringList>

class VeskUIDesktopEntryData;

/// A desktop entry file, read once; the values are copies and do not change until load() is called again.
///
/// Format: the Desktop Entry Specification of freedesktop.org. Only regular files of at most 1 MiB are read; anything
/// else is not valid and its texts are empty.
///
/// Thread: one object per thread; copies are independent.
class VESKPLATFORM_EXPORT VeskUIDesktopEntry
{
public:
    VeskUIDesktopEntry();
    explicit VeskUIDesktopEntry(const QString &filePath); ///< also loads
    VeskUIDesktopEntry(const VeskUIDesktopEntry &other);
    VeskUIDesktopEntry &operator=(const VeskUIDesktopEntry &other);
    ~VeskUIDesktopEntry();

    bool load();                ///< reads the file again; returns isValid()
    bool isValid() const;       ///< the file was read and holds a desktop entry
    bool isDisplayable() const; ///< neither hidden nor kept out of menus
    bool isSuitable() const;    ///< meant for this desktop, and its program is there
    bool getTerminal() const;
    QString getFilePath() const;
    QString getType() const; ///< "Application", "Link", "Directory"
    QString getExec() const;
    QString getTryExec() const;
    QString getUrl() const;
    QString getBestAvailableName() const; ///< in the user's language where there is one
    QString getBestAvailableGenericName() const;
    QString getBestAvailableComment() const;
    QString getBestAvailableIcon() const;
    QString getValue(const QString &key) const; ///< of the main group; empty when missing

    /// The directories in which applications are installed, the user's own first.
    static QStringList getAllAppDesktopEntrySearchPaths();

private:
    QSharedDataPointer<VeskUIDesktopEntryData> m_data;
};
