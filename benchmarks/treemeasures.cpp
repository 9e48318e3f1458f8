// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "treemeasures.h"

#include "paneltree.h"

#include <veskfm/treemodel.h>
#include <veskplatform/entrywatcher.h>
#include <veskplatform/vfs.h>

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QPersistentModelIndex>
#include <QTextStream>
#include <QVector>

#include <ctime>
#include <functional>

using namespace VeskFM;

namespace
{

constexpr auto everything = ModelFilter::EntryFilters(ModelFilter::AllEntries) | ModelFilter::HiddenEntries;
constexpr int samples = 50;

/// The processor's time of this thread, in milliseconds: what a turn of the event loop takes on a machine that has
/// nothing else to do.
double threadMs()
{
    timespec used = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
}

/// Lists everything below @p directory, as a view does that expands each row. Returns the nodes without children.
QVector<Entry> listAll(TreeModel *model, const QString &directory)
{
    QVector<Entry> leaves;
    int pending = 1;
    QEventLoop loop;
    QObject::connect(model, &TreeModel::rowsInserted, &loop, [&](const QModelIndex &parent, int first, int last) {
        for (int row = first; row <= last; ++row) {
            ++pending;
            model->fetchMore(model->index(row, 0, parent));
        }
    });
    QObject::connect(model, &TreeModel::dirListed, &loop, [&](const Entry &entry) {
        if (model->rowCount(model->indexOfEntry(entry)) == 0)
            leaves.append(entry);
        if (--pending == 0)
            loop.quit();
    });
    model->rebuild(VFS::ptr()->entry(directory));
    loop.exec();
    return leaves;
}

/// The GUI thread's time for one event on average, in microseconds, with all that follows from it.
double eventUs(const QVector<Entry> &entries, void (EntryWatcher::*event)(const Entry &))
{
    EntryWatcher *const watcher = VFS::ptr()->entryWatcher();
    const double before = threadMs();
    for (const Entry &entry : entries) {
        Q_EMIT(watcher->*event)
        (entry);
        QCoreApplication::processEvents();
    }
    return (threadMs() - before) * 1000 / entries.size();
}

/// All at once, as they come when another program is at work.
double burstMs(const QVector<Entry> &entries, void (EntryWatcher::*event)(const Entry &))
{
    EntryWatcher *const watcher = VFS::ptr()->entryWatcher();
    for (const Entry &entry : entries)
        Q_EMIT(watcher->*event)
    (entry);
    const double before = threadMs();
    QCoreApplication::processEvents();
    return threadMs() - before;
}

QJsonObject measureEvents(const TreeModel &model, const QVector<Entry> &leaves)
{
    QVector<Entry> some;
    for (int i = 0; i < samples; ++i)
        some.append(leaves.at(static_cast<int>(qint64(leaves.size()) * i / samples)));
    const Entry branch = model.entryByIndex(model.index(0, 0));
    QJsonObject figures;
    figures.insert(QStringLiteral("changed_us"), eventUs(some, &EntryWatcher::entryChanged));
    figures.insert(QStringLiteral("attributes_us"), eventUs(some, &EntryWatcher::entryAttributesChanged));
    figures.insert(QStringLiteral("deleted_us"), eventUs(some, &EntryWatcher::entryDeleted));
    figures.insert(QStringLiteral("created_us"), eventUs(some, &EntryWatcher::entryCreated));
    figures.insert(QStringLiteral("burst_deleted_ms"), burstMs(some, &EntryWatcher::entryDeleted));
    figures.insert(QStringLiteral("burst_created_ms"), burstMs(some, &EntryWatcher::entryCreated));
    figures.insert(QStringLiteral("branch_deleted_ms"), burstMs({branch}, &EntryWatcher::entryDeleted));
    return figures;
}

QJsonObject failure(const QString &reason)
{
    QTextStream(stderr) << "vesk-bench: " << reason << '\n';
    return {};
}

} // namespace

QJsonObject TreeMeasures::nodes(const QString &directory)
{
    TreeModel model(everything);
    const QVector<Entry> leaves = listAll(&model, directory);
    return measureEvents(model, leaves);
}

QJsonObject TreeMeasures::shownNodes(const QString &directory)
{
    TreeModel model(everything);
    const QVector<Entry> leaves = listAll(&model, directory);
    PanelTree panel(&model);
    panel.resize(300, 800);
    panel.show();
    panel.expandAll();
    QCoreApplication::processEvents();
    if (leaves.isEmpty() || panel.model()->rowCount() < leaves.size())
        return failure(QStringLiteral("not all is expanded"));
    QJsonObject figures = measureEvents(model, leaves);
    QJsonObject shown;
    for (auto figure = figures.begin(); figure != figures.end(); ++figure)
        shown.insert(QStringLiteral("shown_") + figure.key(), figure.value());
    return shown;
}

QJsonObject TreeMeasures::wideNode(const QString &directory)
{
    TreeModel model(everything);
    PanelTree panel(&model);
    panel.resize(300, 800);
    panel.show();
    QEventLoop loop;
    QObject::connect(&model, &TreeModel::dirListed, &loop, &QEventLoop::quit);
    model.rebuild(VFS::ptr()->entry(QFileInfo(directory).path()));
    loop.exec();
    const QPersistentModelIndex node = model.indexOfEntry(VFS::ptr()->entry(directory));
    QJsonObject figures;
    const auto measure = [&](const char *what, const std::function<void()> &act) {
        const double before = threadMs();
        act();
        QCoreApplication::processEvents();
        figures.insert(QLatin1String(what) + QStringLiteral("_ms"), threadMs() - before);
    };
    measure("expanded", [&] {
        panel.expand(node);
        loop.exec();
    });
    measure("collapsed", [&] { panel.collapse(node); });
    measure("expanded_again", [&] { panel.expand(node); });
    const int rows = model.rowCount(node);
    measure("wide_deleted", [&] { Q_EMIT VFS::ptr()->entryWatcher()->entryDeleted(model.entryByIndex(node)); });
    return rows > 0 && !node.isValid() ? figures : failure(QStringLiteral("no rows below ") + directory);
}

QJsonObject TreeMeasures::path(const QString &directory)
{
    constexpr int levels = 12;
    QString deepest = directory;
    for (int i = 0; i < levels; ++i)
        deepest += QStringLiteral("/level %1").arg(i);
    QDir().mkpath(deepest);
    TreeModel model(everything);
    model.rebuild(VFS::ptr()->entry(directory));
    const double before = threadMs();
    const int opened = model.pathIndexList(VFS::ptr()->entry(deepest)).size();
    const double openedMs = threadMs() - before;
    if (opened != levels)
        return failure(QStringLiteral("%1 of %2 levels opened").arg(opened).arg(levels));
    return {{QStringLiteral("path_ms"), openedMs}};
}
