// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "statusline.h"

#include "listingstate.h"
#include "pane.h"
#include "printabletext.h"

#include <veskfm/core.h>
#include <veskfm/settings.h>

#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QSlider>

using namespace VeskFM;

namespace
{
constexpr int listingDelayMs = 100;  // most listings are quicker: no text that flashes up
constexpr int selectionDelayMs = 60; // a rubber band or a held arrow key changes the selection many times a second
} // namespace

StatusLine::StatusLine(QWidget *parent)
    : QStatusBar(parent)
    , m_listing(new QLabel(this))
    , m_selection(new QLabel(this))
    , m_room(new QLabel(this))
    , m_iconSize(new QSlider(Qt::Horizontal, this))
{
    setObjectName(QStringLiteral("statusLine"));
    m_listing->setObjectName(QStringLiteral("listingText"));
    m_selection->setObjectName(QStringLiteral("selectionText"));
    m_room->setObjectName(QStringLiteral("roomText"));
    m_iconSize->setObjectName(QStringLiteral("iconSize"));
    m_iconSize->setRange(0, IconSize::nSizes - 1);
    m_iconSize->setFixedWidth(120);
    m_iconSize->setPageStep(1);
    m_listing->setContentsMargins(6, 0, 0, 0);
    m_selection->setContentsMargins(0, 0, 12, 0);
    m_room->setContentsMargins(0, 0, 12, 0);
    setSizeGripEnabled(false);
    setContentsMargins(0, 0, 8, 0);
    addWidget(m_listing, 1);
    addPermanentWidget(m_selection);
    addPermanentWidget(m_room);
    addPermanentWidget(m_iconSize);
    m_listingTimer.setSingleShot(true);
    m_selectionTimer.setSingleShot(true);
    m_selectionTimer.setInterval(selectionDelayMs);
    connect(&m_listingTimer, &QTimer::timeout, this, &StatusLine::describeListings);
    connect(&m_selectionTimer, &QTimer::timeout, this, &StatusLine::describeSelection);
    connect(m_iconSize, &QSlider::valueChanged, this, [this](int step) {
        if (m_pane && m_pane->views()->entryIconSize().sizeIndex() != step)
            m_pane->views()->setEntryIconSize(IconSize(IconSize::sizes[step]));
    });
    connect(&m_description, &SelectionDescription::updated, this, &StatusLine::showSelection);
    followSettings();
}

void StatusLine::followSettings()
{
    const Settings *const settings = Settings::ptr();
    const auto showSlider = [this, settings] { m_iconSize->setVisible(settings->showScaleSliderInStatusBar()); };
    connect(settings, &Settings::showScaleSliderInStatusBarChanged, m_iconSize, showSlider);
    showSlider();
    connect(settings, &Settings::showDiskSpaceInfoInStatusBarChanged, this, &StatusLine::askForRoom);
    connect(&m_diskSpace, &DiskSpace::changed, this, &StatusLine::showRoom);
}

void StatusLine::askForRoom()
{
    const bool shown = Settings::ptr()->showDiskSpaceInfoInStatusBar();
    m_room->setVisible(shown);
    m_diskSpace.setDirectory(shown && m_pane ? m_pane->directory() : Entry());
}

void StatusLine::showRoom(qint64 freeBytes, qint64 totalBytes)
{
    m_room->setText(freeBytes < 0 ? QString() : tr("%1 free").arg(Core::dataSizeAsString(freeBytes)));
    m_room->setToolTip(freeBytes < 0 ? QString() : tr("of %1").arg(Core::dataSizeAsString(totalBytes)));
}

void StatusLine::listenTo(Pane *pane)
{
    m_panes.append(pane);
    Model *const model = pane->model();
    const auto later = [this] { m_listingTimer.start(0); };
    connect(model, &QAbstractItemModel::modelReset, this, [this, pane] {
        pane->views()->setEmptyText({});
        m_listingTimer.start(listingDelayMs);
    });
    connect(model, &QAbstractItemModel::rowsInserted, this, later);
    connect(model, &QAbstractItemModel::rowsRemoved, this, later);
    connect(model, &Model::dirListed, this, later);
    connect(pane, &Pane::directoryChanged, this, &StatusLine::askForRoom);
    connect(pane->views(), &EntryViews::selectionChanged, this, [this] { m_selectionTimer.start(); });
    connect(pane->views(), &EntryViews::entryIconSizeChanged, this, &StatusLine::showIconSize);
}

void StatusLine::setPane(Pane *pane)
{
    m_pane = pane;
    m_listingTimer.start(0);
    m_selectionTimer.start();
    showIconSize();
    askForRoom();
}

void StatusLine::showIconSize()
{
    if (!m_pane)
        return;
    const IconSize size = m_pane->views()->entryIconSize();
    m_iconSize->setValue(size.sizeIndex());
    m_iconSize->setToolTip(tr("Icons: %1").arg(size.name()));
}

void StatusLine::describeListings()
{
    for (Pane *pane : qAsConst(m_panes))
        describeListing(pane);
}

void StatusLine::describeListing(Pane *pane)
{
    const Model &model = *pane->model();
    const int count = entryCount(model);
    QString text;
    QString emptyText;
    if (isListing(model)) {
        text = tr("Listing %1 …").arg(printableText(pane->directory().path()));
    } else if (count > 0) {
        text = tr("%Ln entry(s)", nullptr, count);
    } else if (!pane->directory().isNull()) {
        emptyText = emptyListingReason(model);
        text = emptyText;
    }
    pane->views()->setEmptyText(emptyText);
    if (pane == m_pane)
        m_listing->setText(text);
}

void StatusLine::describeSelection()
{
    if (!m_pane)
        return;
    const EntryList entries = m_pane->views()->selectedEntries();
    if (entries.isEmpty()) {
        m_description.clear();
        showSelection({});
    } else {
        m_description.describe(entries);
    }
}

/// Names may be long, and the rest of the line is needed too.
void StatusLine::showSelection(const QString &description)
{
    m_selection->setText(fontMetrics().elidedText(printableText(description), Qt::ElideMiddle, width() / 2));
}
