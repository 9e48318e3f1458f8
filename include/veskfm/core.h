// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QMap>
#include <QString>
#include <QStringList>

class QJsonObject;
class QProcessEnvironment;
class QWidget;

namespace VeskFM
{

/// Small operations that every part of the library may call.
///
/// Loading the library installs its message handler for the toolkit's logging, registers its value types and, with the
/// application object, its translators.
class VESKFM_EXPORT Core
{
public:
    enum HaltReason {
        TerminationRequested = 1, ///< SIGINT or SIGTERM
        Crashed = 2               ///< SIGSEGV
    };
    using HaltHandler = void (*)(HaltReason);

    Core() = delete;

    static QString version();

    /// A size in bytes for display: "512 B", "1.50 KB". Units are powers of 1024, up to "TB"; the unit is chosen before
    /// rounding, so 1048575 gives "1024.00 KB". A negative size is printed in bytes. Any thread.
    static QString dataSizeAsString(long long size);
    /// MD5 of the text in the local 8-bit encoding, as 32 lower-case hexadecimal digits. Any thread.
    static QString md5HashForString(const QString &text);

    /// Moves @p widget to the middle of the primary screen's available area. Null does nothing.
    static void moveForCenter(QWidget *widget);
    /// Moves @p widget to a quarter of the primary screen's available area. Null does nothing.
    static void moveForPresentation(QWidget *widget);

    /// Starts a detached process from a command line: blanks separate, double quotes group. With "ROOT_DISPLAY" set the
    /// process starts on that display, through the root-display tool. Returns whether the start succeeded.
    ///
    /// Thread: one call at a time, and nobody else may read the environment meanwhile: the child gets its variables by
    /// a change of this process's own, undone before the return. The same holds for the other overload.
    static bool startProcess(const QString &commandLine);
    /// Starts a detached process with the variables of @p environment added to this process's own.
    static bool startProcess(const QString &program, const QStringList &arguments, const QString &workingDirectory,
                             const QProcessEnvironment &environment);

    /// The supplementary groups and the effective group of the process, id to name; groups without a name are left out.
    static QMap<unsigned int, QString> currentProcessGroups();

    /// Whether a plug-in may be loaded in the system's security mode. @p metaData lists the modes it may run in under
    /// "MetaData", "ZarnelModes"; no list, an empty one or a -1 in it means all.
    ///
    /// The first call asks the mode tool and may block for 30 seconds; an unknown mode admits every plug-in.
    /// Thread: the first call belongs on the main thread.
    static bool shouldLoadPlugin(const QJsonObject &metaData);

    /// Appends a handler that runs once when the process is about to end by a signal, in order of registration.
    static void addHaltHandler(HaltHandler handler);
    /// Takes the handlers off the list one by one and calls each; one that is added meanwhile is called too.
    static void runHaltHandlers(HaltReason reason);
    /// Makes SIGINT, SIGSEGV and SIGTERM run the halt handlers before their default action.
    static void installHaltSignalHandler();

    /// Whether the message handler prints debug messages; on at start. Any thread.
    static void setDebugOutputEnabled(bool on);
    static bool isDebugOutputEnabled();
};

} // namespace VeskFM
