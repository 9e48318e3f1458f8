// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/model.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// What the command line asks for.
struct Options
{
    QList<QByteArray> directories; ///< as given, in the bytes of the file system; the current one if none was
    bool help = false;
    bool print = false;
    QString screenshotFile; ///< empty: no screenshot
    bool hidden = false;
    QString filter;       ///< as typed; empty for no filter
    QString sortProperty; ///< internal name of a property; empty for the default
    VeskFM::Model::SortOrder sortOrder = VeskFM::Model::Ascending;

    /// Whether no window is wanted on a display.
    bool isHeadless() const { return help || print || !screenshotFile.isEmpty(); }
};

/// Reads the command line. Needs no application object, so that the answer can decide about the platform; before the
/// application has taken its own options out of @p argv, those count as unknown.
/// @return what is wrong with it; empty when all is well
QString readOptions(int argc, char **argv, Options *options);

/// The text for --help; needs the application object.
QString helpText();

/// The entry that a path or file URL of the command line names, relative to the current directory; null where there is
/// none.
VeskFM::Entry entryForArgument(const QByteArray &path);

/// The patterns for what a user types into a name filter: wildcards as they are, separated by ";", other text anywhere
/// in the name.
QStringList nameFilterPatterns(const QString &text);

/// Sets sorting and filters of a model that has no root yet. Returns false for an unknown property.
bool applyOptions(const Options &options, VeskFM::Model *model);
