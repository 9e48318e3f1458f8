// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "description.h"

#include "figures.h"
#include "generatedforest.h"
#include "stallmeter.h"

#include <veskfm/entrydescribethread.h>
#include <veskplatform/vfs.h>

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTextStream>
#include <QTimer>

using namespace VeskFM;

namespace
{

double elapsedMs(const QElapsedTimer &clock)
{
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

} // namespace

QJsonObject measureDescription(const QString &directory)
{
    constexpr int untilStopMs = 30; // the digest of so many files takes longer
    const EntryList selection = VFS::ptr()->childs(VFS::ptr()->entry(directory), VFS::PlainListing, nullptr);
    EntryDescribeThread thread;
    QString text;
    QObject::connect(&thread, &EntryDescribeThread::descriptionUpdated, &thread, [&](const QString &t) { text = t; });
    QEventLoop loop;
    QObject::connect(&thread, &EntryDescribeThread::finished, &loop, &QEventLoop::quit);
    StallMeter stall;
    QElapsedTimer clock;
    stall.start();
    clock.start();
    thread.describe(selection);
    const double firstMs = elapsedMs(clock);
    const QString first = text;
    loop.exec();
    const double wholeMs = elapsedMs(clock);
    const double stallMs = stall.stop();
    const QString whole = text;

    thread.describe(selection);
    QTimer::singleShot(untilStopMs, &loop, &QEventLoop::quit);
    loop.exec();
    const bool isInTheMiddle = thread.isRunning();
    clock.start();
    thread.stop();
    const double stopMs = elapsedMs(clock);
    if (!whole.startsWith(first) || whole == first || !isInTheMiddle) {
        QTextStream(stderr) << "vesk-bench: no digest, or it was over too soon: " << whole << '\n';
        return {};
    }
    return {{QStringLiteral("first_ms"), firstMs},
            {QStringLiteral("whole_ms"), wholeMs},
            {QStringLiteral("stall_ms"), stallMs},
            {QStringLiteral("stop_ms"), stopMs}};
}

bool printDescriptionScore(int size)
{
    constexpr int runs = 5;
    const GeneratedForest files(QDir::tempPath(), {size, 0, 0}, size);
    if (files.path().isEmpty()) {
        QTextStream(stderr) << "Cannot fill a directory below " << QDir::tempPath() << '\n';
        return false;
    }
    Figures figures;
    bool good = true;
    for (int run = 0; good && run < runs; ++run)
        good = measure(QStringLiteral("description"), files.path(), &figures);
    if (good)
        QTextStream(stdout) << "{\"bench\":\"describe\",\"files\":" << size << ",\"runs\":" << runs
                            << ",\"due\":{\"first_ms\":50,\"stall_ms\":50,\"stop_ms\":50},\"figures\":"
                            << objectOf(figures) << "}\n";
    return good;
}
