// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pane.h"

#include "containers.h"
#include "filterbar.h"
#include "filterwidgets.h"
#include "kiosk.h"
#include "pathbar.h"
#include "printabletext.h"

#include <veskfm/entryviewparameters.h>
#include <veskfm/modelfilter.h>
#include <veskfm/settings.h>
#include <veskplatform/entrywatcher.h>
#include <veskplatform/storagemount.h>
#include <veskplatform/vfs.h>

#include <QAbstractItemView>
#include <QFrame>
#include <QVBoxLayout>

#include <utility>

using namespace VeskFM;

namespace
{
constexpr int markHeight = 3; // pixels
constexpr int barMargin = 4;  // pixels around the path
} // namespace

Pane::Pane(QWidget *parent)
    : QWidget(parent)
    , m_model(new Model(Model::TableMode, ModelFilter::AllEntries, nullptr))
    , m_views(new EntryViews(m_model.get(), this))
    , m_pathBar(new PathBar(this))
    , m_filter(new FilterBar(this))
    , m_mark(new QFrame(this))
{
    m_model->setShowDotDot(true);
    m_model->setNameFiltersForFilesOnly(false); // who types a part of a name looks for that name, whatever it is
    m_mark->setFixedHeight(markHeight);
    m_mark->setAutoFillBackground(true);
    auto *const bars = new QVBoxLayout;
    bars->setContentsMargins(barMargin, barMargin, barMargin, barMargin);
    bars->addWidget(m_pathBar);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_mark);
    layout->addLayout(bars);
    layout->addWidget(m_views, 1);
    layout->addWidget(m_filter);
    layout->addWidget(new FilterWidgets(m_model.get(), m_filter, this));
    setFocusProxy(m_views);
    createBars();
    followModel();
    followParameters();
}

Pane::~Pane()
{
    delete m_views; // before its model
}

void Pane::createBars()
{
    m_pathBar->setObjectName(QStringLiteral("pathBar"));
    m_pathBar->setReadOnly(Kiosk::isOn());
    m_filter->setObjectName(QStringLiteral("filter"));
    connect(m_pathBar, &PathBar::directoryEntered, this, [this](const Entry &directory) {
        focusView();
        openDirectory(directory);
    });
    connect(m_pathBar, &PathBar::entryRefused, this, &Pane::message);
    connect(m_pathBar, &PathBar::left, this, &Pane::focusView);
    connect(m_pathBar, &PathBar::focused, this, &Pane::activated);
    connect(m_filter, &FilterBar::patternsChanged, this,
            [this](const QStringList &patterns) { m_model->setNameFilters(patterns); });
    connect(m_filter, &FilterBar::left, this, &Pane::focusView);
    connect(m_views, &EntryViews::entryActivated, this, &Pane::activateEntry);
    connect(m_views, &EntryViews::escapePressed, m_filter, &FilterBar::dismiss);
    connect(m_views, &EntryViews::focused, this, &Pane::activated);
}

void Pane::followModel()
{
    connect(m_model.get(), &Model::dirListed, this, [this](const Entry &listed) {
        if (listed == directory())
            m_views->showEntry(std::exchange(m_cursor, {}));
    });
    // Queued, since the watcher speaks from any thread.
    const EntryWatcher *const watcher = VFS::ptr()->entryWatcher();
    connect(watcher, &EntryWatcher::entryDeleted, this, &Pane::leaveLostDirectory, Qt::QueuedConnection);
    connect(watcher, &EntryWatcher::entryReset, this, &Pane::leaveLostDirectory, Qt::QueuedConnection);
}

// The library keeps the parameters; what they mean for rows that are there is for the owner of the model to say.
void Pane::followParameters()
{
    const EntryViewParameters *const parameters = EntryViewParameters::ptr();
    const auto present = [this] { m_model->updatePresentation(); };
    connect(parameters, &EntryViewParameters::useMetaInfoForDirsChanged, this, present);
    connect(parameters, &EntryViewParameters::showThumbnailsChanged, this, present);
    connect(parameters, &EntryViewParameters::showThumbnailsInNetworkChanged, this, present);
    connect(parameters, &EntryViewParameters::shownThumbnailGroupsChanged, this, present);
    connect(parameters, &EntryViewParameters::maxImageFileSizeToShowThumbnailChanged, this, present);
    connect(parameters, &EntryViewParameters::showFileSizeInBytesChanged, this, present);
    connect(parameters, &EntryViewParameters::numericSortingEnabledChnaged, this, &Pane::reload);
    connect(parameters, &EntryViewParameters::localeSortingEnabledChnaged, this, &Pane::reload);
}

Entry Pane::directory() const
{
    return m_model->actualRootEntry();
}

bool Pane::isWritable() const
{
    return m_writable;
}

bool Pane::hasTrash() const
{
    return m_writable && (!m_onNetwork || Settings::ptr()->allowTrashActionFromNetwork());
}

bool Pane::canGoUp() const
{
    return !parentToShow(directory()).isNull();
}

void Pane::openDirectory(const Entry &directory, const Entry &cursor)
{
    const Entry previous = this->directory();
    if (!showDirectory(directory))
        return;
    if (!cursor.isNull())
        m_cursor = cursor;
    if (!previous.isNull() && previous != this->directory())
        m_history.leave(previous);
    Q_EMIT directoryChanged();
}

void Pane::goBack()
{
    const Entry target = m_history.back(directory());
    if (target.isNull())
        return;
    if (!showDirectory(target))
        m_history.forward(Entry()); // it is gone: so is the step
    Q_EMIT directoryChanged();
}

void Pane::goForward()
{
    const Entry target = m_history.forward(directory());
    if (target.isNull())
        return;
    if (!showDirectory(target))
        m_history.back(Entry());
    Q_EMIT directoryChanged();
}

void Pane::goUp()
{
    const Entry parent = parentToShow(directory());
    if (!parent.isNull())
        openDirectory(parent);
}

void Pane::reload()
{
    m_cursor = m_views->currentEntry();
    m_model->rebuild();
}

void Pane::setFilter(const QString &text)
{
    m_filter->reset(text);
    m_model->filter().setNameFilters(m_filter->patterns());
    if (directory().isNull())
        m_model->filter().flushChanges(); // nothing to list yet
    else
        m_model->flushFilter();
}

void Pane::setActive(bool active)
{
    m_mark->setBackgroundRole(active ? QPalette::Highlight : QPalette::Window);
}

void Pane::focusView()
{
    m_views->view()->setFocus();
}

void Pane::activateEntry(const Entry &entry)
{
    if (StorageMount::canMount(entry))
        Q_EMIT deviceActivated(entry);
    else if (canBeShown(entry))
        openDirectory(entry);
    else
        Q_EMIT fileActivated(entry);
}

bool Pane::showDirectory(const Entry &container)
{
    const Entry directory = directoryToShow(container);
    if (!canBeShown(directory) || !VFS::ptr()->isEntryExists(directory)) {
        const QString path = container.localPath().isEmpty() ? container.path() : container.localPath();
        Q_EMIT message(tr("There is no folder %1").arg(printableText(path)));
        return false;
    }
    const Entry previous = this->directory();
    m_cursor = !previous.isNull() && VFS::ptr()->parent(previous) == directory ? previous : Entry();
    if (previous != directory && !previous.isNull() && !m_filter->text().isEmpty()) {
        m_filter->reset(); // a filter is for the directory it was typed in
        m_model->filter().setNameFilters(m_filter->patterns());
        m_model->filter().flushChanges(); // the rebuild below is enough
    }
    Q_EMIT message(QString());
    m_model->rebuild(directory);
    m_writable = !directory.isPlace() && canTakeFiles(directory);
    m_onNetwork = VFS::ptr()->isOnNonHomeNetworkFileSystem(directory);
    m_pathBar->setDirectory(directory);
    return true;
}

// The model keeps its root whatever happens to it; a window should not stay where nothing is any more, be it deleted or
// on a device that was pulled.
void Pane::leaveLostDirectory(const Entry &lost)
{
    const Entry here = directory();
    const bool concerned = !lost.isNull() && (lost == here || here.path().startsWith(lost.path() + QLatin1Char('/')));
    if (!concerned || VFS::ptr()->isEntryExists(here))
        return;
    Entry parent = parentToShow(here);
    while (!parent.isNull() && !VFS::ptr()->isEntryExists(parent))
        parent = parentToShow(parent);
    openDirectory(parent.isNull() ? VFS::ptr()->homeEntry() : parent);
    Q_EMIT message(tr("%1 is not there any more").arg(printableText(here.path())));
}
