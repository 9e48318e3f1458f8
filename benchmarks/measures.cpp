// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "measures.h"

#include "changer.h"
#include "floor.h"
#include "stallmeter.h"

#include <veskfm/model.h>
#include <veskfm/propertyenumerator.h>
#include <veskfm/props.h>
#include <veskplatform/entrywatcher.h>
#include <veskplatform/vfs.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <functional>
#include <unistd.h>

using namespace VeskFM;

namespace
{

constexpr auto everything = ModelFilter::EntryFilters(ModelFilter::AllEntries) | ModelFilter::HiddenEntries;

double elapsedMs(const QElapsedTimer &clock)
{
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

Entry entryFor(const QString &path)
{
    return VFS::ptr()->entry(path);
}

/// Rebuilds and waits for the rows; milliseconds from the one to the other.
double list(Model *model, const QString &directory)
{
    QEventLoop loop;
    QObject::connect(model, &Model::dirListed, &loop, &QEventLoop::quit);
    const Entry entry = entryFor(directory);
    QElapsedTimer clock;
    clock.start();
    model->rebuild(entry);
    loop.exec();
    return elapsedMs(clock);
}

/// What the first listing of a process sets up once, whatever it lists: plug-ins, settings, the watcher.
void warmUp(Model *model)
{
    const QTemporaryDir small;
    for (int i = 0; i < 100; ++i)
        QDir(small.path()).mkdir(QString::number(i));
    list(model, small.path());
}

double sort(Model *model, int property, Qt::SortOrder order)
{
    QElapsedTimer clock;
    clock.start();
    model->sort(property, order);
    return elapsedMs(clock);
}

double residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

QJsonObject failure(const QString &reason)
{
    QTextStream(stderr) << "vesk-bench: " << reason << '\n';
    return {};
}

/// Runs the event loop until @p condition holds, asked every millisecond. Returns the time when it was found to hold,
/// or -1 after a minute.
qint64 waitUntil(const std::function<bool()> &condition)
{
    constexpr int patienceMs = 60000;
    qint64 metAtNs = -1;
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (!condition())
            return;
        metAtNs = Changer::nowNs();
        loop.quit();
    });
    poll.setTimerType(Qt::PreciseTimer);
    poll.start(1);
    QTimer::singleShot(patienceMs, &loop, &QEventLoop::quit);
    loop.exec();
    return metAtNs;
}

/// Lets another process make one kind of change in the listed directory, and adds to @p figures how long after the
/// last of them @p rowsAreRight came true, and the longest stall from the first on.
bool measureChange(const QString &change, const QString &figure, const QString &directory,
                   const std::function<bool()> &rowsAreRight, QJsonObject *figures)
{
    QProcess process;
    StallMeter stall;
    stall.start();
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--change"), change, directory});
    const qint64 rightAtNs = waitUntil(rowsAreRight);
    figures->insert(figure + QStringLiteral("_stall_ms"), stall.stop());
    process.waitForFinished(-1);
    const qint64 lastChangeNs = process.readAllStandardOutput().toLongLong();
    figures->insert(figure + QStringLiteral("_ms"), static_cast<double>(rightAtNs - lastChangeNs) / 1e6);
    return rightAtNs >= 0 && process.exitCode() == 0;
}

/// The GUI thread's time for one event of the watcher, on average over rows all over the model; in microseconds.
double measureEvent(const EntryList &entries, const std::function<void(const Entry &)> &announce)
{
    QElapsedTimer clock;
    clock.start();
    for (const Entry &entry : entries) {
        announce(entry);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }
    return elapsedMs(clock) * 1000 / entries.size();
}

void measureEvents(const Model &model, QJsonObject *figures)
{
    constexpr int samples = 500;
    EntryList entries;
    for (int i = 0; i < samples; ++i) {
        const int row = static_cast<int>(qint64(model.rowCount()) * i / samples);
        entries.append(model.entryByIndex(model.index(row, 0)));
    }
    EntryWatcher *const watcher = VFS::ptr()->entryWatcher();
    const auto figure = [&](const char *name, void (EntryWatcher::*event)(const Entry &)) {
        figures->insert(QLatin1String(name), measureEvent(entries, [&](const Entry &entry) {
                            Q_EMIT(watcher->*event)
                            (entry);
                        }));
    };
    figure("event_changed_us", &EntryWatcher::entryChanged);
    figure("event_deleted_us", &EntryWatcher::entryDeleted);
    figure("event_created_us", &EntryWatcher::entryCreated);
}

} // namespace

QJsonObject Measures::floor(const QString &directory)
{
    const double floorMs = measureFloor(directory);
    if (floorMs < 0)
        return failure(QStringLiteral("cannot read ") + directory);
    return {{QStringLiteral("floor_ms"), floorMs}};
}

QJsonObject Measures::listing(const QString &directory)
{
    const QTemporaryDir empty;
    Model model(Model::TableMode, everything, nullptr);
    warmUp(&model);
    const int size = model.propertyIndex(QStringLiteral("Size"));
    if (size < 0)
        return failure(QStringLiteral("the column \"Size\" is missing: its plug-in was not loaded"));

    QJsonObject figures;
    const double before = residentBytes();
    StallMeter stall;
    stall.start();
    figures.insert(QStringLiteral("full_ms"), list(&model, directory));
    figures.insert(QStringLiteral("stall_ms"), stall.stop());
    QCoreApplication::processEvents(); // the answer itself goes with the event that brought it
    const int rows = model.rowCount();
    figures.insert(QStringLiteral("bytes_per_row"), (residentBytes() - before) / rows);
    const QDir onDisk(directory, {}, QDir::Unsorted,
                      QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    if (rows != static_cast<int>(onDisk.count()))
        return failure(QStringLiteral("%1 rows for %2 entries").arg(rows).arg(onDisk.count()));

    figures.insert(QStringLiteral("resort_size_ms"), sort(&model, size, Qt::DescendingOrder));
    figures.insert(QStringLiteral("resort_name_ms"), sort(&model, 0, Qt::AscendingOrder));
    figures.insert(QStringLiteral("leave_ms"), list(&model, empty.path()));
    QElapsedTimer clock;
    clock.start();
    Props::ptr()->propertyEnumerator()->releaseDataHolders(5000); // what its timer keeps
    figures.insert(QStringLiteral("trim_ms"), elapsedMs(clock));
    return figures;
}

QJsonObject Measures::changes(const QString &directory)
{
    Model model(Model::TableMode, everything, nullptr);
    warmUp(&model);
    list(&model, directory);
    const int rows = model.rowCount();
    QJsonObject figures;
    const auto measure = [&](const char *change, const char *figure, const std::function<bool()> &rowsAreRight) {
        return measureChange(QLatin1String(change), QLatin1String(figure), directory, rowsAreRight, &figures);
    };

    const bool created = measure("create", "created", [&] { return model.rowCount() == rows + Changer::fileCount; });
    EntryList entries;
    for (const QByteArray &name : Changer::fileNames())
        entries.append(entryFor(directory + QLatin1Char('/') + QFile::decodeName(name)));
    int right = 0; // files before this one show the size that was written last
    const bool touched = created && measure("write", "touched", [&] {
                             while (right < entries.size()
                                    && model.indexOfEntry(entries.at(right)).data(Model::SizeValueRole).toLongLong()
                                        == Changer::fileSize(right))
                                 ++right;
                             return right == entries.size();
                         });
    const bool deleted = touched && measure("delete", "deleted", [&] { return model.rowCount() == rows; });
    if (!deleted)
        return failure(QStringLiteral("%1 of %2 rows, %3 sizes right: the rows never followed the changes")
                           .arg(model.rowCount())
                           .arg(rows + Changer::fileCount)
                           .arg(right));
    measureEvents(model, &figures);
    return figures;
}
