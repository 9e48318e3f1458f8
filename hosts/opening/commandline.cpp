// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "commandline.h"

#include <veskfm/appinfo.h>
#include <veskfm/global.h>

#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace VeskFM;

namespace
{

constexpr char group[] = G_KEY_FILE_DESKTOP_GROUP;
using GKeyFilePtr = std::unique_ptr<GKeyFile, GKeyFileUnref>;

void set(GKeyFile *file, const char *key, const QString &value)
{
    g_key_file_set_string(file, group, key, value.toUtf8().constData());
}

/// A word that stands for itself, in quotes and with no field codes.
QString quoted(const QString &word)
{
    const GTextPtr text(g_shell_quote(word.toUtf8().constData()));
    return QString::fromUtf8(text.get()).replace(QLatin1Char('%'), QLatin1String("%%"));
}

QString programOf(const QString &command)
{
    char **words = nullptr;
    QString program;
    if (g_shell_parse_argv(command.toUtf8().constData(), nullptr, &words, nullptr))
        program = QString::fromLocal8Bit(words[0]);
    g_strfreev(words);
    return program;
}

bool takesFiles(const QString &command)
{
    static const QRegularExpression codes(QStringLiteral("%(.)"));
    for (auto found = codes.globalMatch(command); found.hasNext();) {
        if (QStringLiteral("fFuU").contains(found.next().captured(1)))
            return true;
    }
    return false;
}

/// What "%k" stands for, in words: an entry that was changed in memory has no file that GIO could name.
QString withLocation(const QString &command, const QString &file)
{
    QString result = command;
    for (int at = result.indexOf(QLatin1Char('%')); at >= 0; at = result.indexOf(QLatin1Char('%'), at)) {
        const bool isLocation = result.mid(at + 1, 1) == QLatin1String("k");
        const QString text = isLocation ? quoted(file) : result.mid(at, 2);
        result.replace(at, 2, text);
        at += text.size();
    }
    return result;
}

bool needsTerminal(GAppInfo *app)
{
    if (G_IS_DESKTOP_APP_INFO(app)
        && g_desktop_app_info_get_boolean(G_DESKTOP_APP_INFO(app), G_KEY_FILE_DESKTOP_KEY_TERMINAL))
        return true;
    const QString program = programOf(QString::fromUtf8(g_app_info_get_commandline(app)));
    return Global::ptr()->terminalDependedApplications().contains(QFileInfo(program).fileName());
}

} // namespace

QString CommandLine::withoutFiles(const QString &command)
{
    static const QRegularExpression files(QStringLiteral("\\s+%[fFuU]\\s*$"));
    return QString(command).remove(files).trimmed();
}

GAppPtr CommandLine::application(const QString &command, const QString &name, bool terminal)
{
    const QString program = programOf(command);
    if (QStandardPaths::findExecutable(program).isEmpty()) {
        qWarning("there is no program for the command \"%s\"", qUtf8Printable(command));
        return nullptr;
    }
    QString title = name.isEmpty() ? AppInfo::nameByExec(program) : name;
    title.replace(QLatin1Char('/'), QLatin1Char('-')); // GIO names the user's desktop entry after it
    const GKeyFilePtr file(g_key_file_new());
    set(file.get(), G_KEY_FILE_DESKTOP_KEY_TYPE, QStringLiteral("Application"));
    set(file.get(), G_KEY_FILE_DESKTOP_KEY_NAME, title);
    set(file.get(), G_KEY_FILE_DESKTOP_KEY_COMMENT, QString());
    set(file.get(), G_KEY_FILE_DESKTOP_KEY_EXEC, takesFiles(command) ? command : command + QLatin1String(" %U"));
    g_key_file_set_boolean(file.get(), group, G_KEY_FILE_DESKTOP_KEY_TERMINAL, terminal);
    return GAppPtr(G_APP_INFO(g_desktop_app_info_new_from_keyfile(file.get())));
}

GAppPtr CommandLine::inTerminal(GAppInfo *app)
{
    Global &global = *Global::ptr();
    if (!needsTerminal(app) || QStandardPaths::findExecutable(global.terminalProgram()).isEmpty())
        return nullptr; // without ours, GIO looks for another one
    QStringList words;
    const QStringList terminal = QStringList(global.terminalProgram()) + global.terminalArgs();
    for (const QString &word : terminal)
        words.append(quoted(word));

    const GKeyFilePtr file(g_key_file_new());
    const char *const path =
        G_IS_DESKTOP_APP_INFO(app) ? g_desktop_app_info_get_filename(G_DESKTOP_APP_INFO(app)) : nullptr;
    if (!path || !g_key_file_load_from_file(file.get(), path, G_KEY_FILE_KEEP_TRANSLATIONS, nullptr)) {
        set(file.get(), G_KEY_FILE_DESKTOP_KEY_TYPE, QStringLiteral("Application"));
        set(file.get(), G_KEY_FILE_DESKTOP_KEY_NAME, QString::fromUtf8(g_app_info_get_name(app)));
    }
    words.append(withLocation(QString::fromUtf8(g_app_info_get_commandline(app)), QString::fromUtf8(path)));
    set(file.get(), G_KEY_FILE_DESKTOP_KEY_EXEC, words.join(QLatin1Char(' ')));
    g_key_file_set_boolean(file.get(), group, G_KEY_FILE_DESKTOP_KEY_TERMINAL, FALSE);
    g_key_file_set_boolean(file.get(), group, G_KEY_FILE_DESKTOP_KEY_DBUS_ACTIVATABLE, FALSE);
    return GAppPtr(G_APP_INFO(g_desktop_app_info_new_from_keyfile(file.get())));
}
