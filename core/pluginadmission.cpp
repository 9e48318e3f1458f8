// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core_p.h"

#include <fixedplaces.h>
#include <veskfm/core.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QVector>

#include <atomic>

namespace VeskFM
{

namespace
{

constexpr int notAsked = -2;
constexpr int unknownMode = -1;
constexpr int modeCount = 3;
constexpr int modeToolTimeoutMs = 30000;

std::atomic<int> cachedMode{notAsked};

QString &modeTool()
{
    static QString path = QStringLiteral(VESKFM_MODE_TOOL);
    return path;
}

int askModeTool()
{
    const QFileInfo tool(modeTool());
    if (!tool.isFile() || !tool.isExecutable())
        return unknownMode;
    QProcess process;
    process.start(tool.filePath(), {QStringLiteral("get")}, QIODevice::ReadWrite);
    if (!process.waitForFinished(modeToolTimeoutMs)) {
        process.kill();
        process.waitForFinished();
        return unknownMode;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return unknownMode;
    QByteArray answer = process.readAllStandardOutput();
    if (answer.endsWith('\n'))
        answer.chop(1);
    bool isNumber = false;
    const int mode = answer.toInt(&isNumber, 10);
    return isNumber && mode < modeCount ? mode : unknownMode;
}

int securityMode()
{
    if (cachedMode == notAsked) {
        cachedMode = unknownMode; // a call that comes while the tool runs must not start it again
        cachedMode = askModeTool();
    }
    return cachedMode;
}

/// The modes that the plug-in names; empty for all.
QVector<int> declaredModes(const QJsonObject &metaData)
{
    QVector<int> modes;
    const QJsonArray declared = metaData[QLatin1String("MetaData")].toObject()[QLatin1String("ZarnelModes")].toArray();
    for (const QJsonValue &value : declared) {
        const int mode = value.toInt(-1);
        if (mode == -1)
            return {};
        modes.append(mode);
    }
    return modes;
}

} // namespace

void resetSecurityMode()
{
    cachedMode = notAsked;
}

void setSecurityModeTool(const QString &path)
{
    modeTool() = path;
}

bool Core::shouldLoadPlugin(const QJsonObject &metaData)
{
    const int mode = securityMode();
    if (mode < 0)
        return true;
    const QVector<int> modes = declaredModes(metaData);
    return modes.isEmpty() || modes.contains(mode);
}

} // namespace VeskFM
