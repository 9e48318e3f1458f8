// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "statusline.h"

#include "directoryview.h"
#include "listingstate.h"
#include "printabletext.h"

#include <veskfm/core.h>
#include <veskfm/model.h>

#include <QItemSelectionModel>
#include <QLabel>
#include <QSlider>

using namespace VeskFM;

namespace
{
constexpr int listingDelayMs = 100;  // most listings are quicker: no text that flashes up
constexpr int selectionDelayMs = 60; // a rubber band or a held arrow key changes the selection many times a second
} // namespace

StatusLine::StatusLine(Model *model, DirectoryView *view, QWidget *parent)
    : QStatusBar(parent)
    , m_model(model)
    , m_view(view)
    , m_listing(new QLabel(this))
    , m_selection(new QLabel(this))
    , m_iconSize(new QSlider(Qt::Horizontal, this))
{
    m_iconSize->setRange(0, IconSize::nSizes - 1);
    m_iconSize->setFixedWidth(120);
    m_iconSize->setPageStep(1);
    m_listing->setContentsMargins(6, 0, 0, 0);
    m_selection->setContentsMargins(0, 0, 12, 0);
    setSizeGripEnabled(false);
    setContentsMargins(0, 0, 8, 0);
    addWidget(m_listing, 1);
    addPermanentWidget(m_selection);
    addPermanentWidget(m_iconSize);
    m_listingTimer.setSingleShot(true);
    m_selectionTimer.setSingleShot(true);
    m_selectionTimer.setInterval(selectionDelayMs);
    connect(&m_listingTimer, &QTimer::timeout, this, &StatusLine::describeListing);
    connect(&m_selectionTimer, &QTimer::timeout, this, &StatusLine::describeSelection);
    followModel();
    followIconSize();
}

void StatusLine::followModel()
{
    const auto later = [this] { m_listingTimer.start(0); };
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        m_view->setEmptyText({});
        m_listingTimer.start(listingDelayMs);
    });
    connect(m_model, &QAbstractItemModel::rowsInserted, this, later);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, later);
    connect(m_model, &Model::dirListed, this, later);
    const auto selectionLater = [this] { m_selectionTimer.start(); };
    connect(m_view, &DirectoryView::selectedRowsChanged, this, selectionLater);
    connect(m_model, &QAbstractItemModel::modelReset, this, selectionLater);
}

void StatusLine::followIconSize()
{
    const auto show = [this](IconSize size) {
        m_iconSize->setValue(size.sizeIndex());
        m_iconSize->setToolTip(tr("Icons: %1").arg(size.name()));
    };
    connect(m_view, &DirectoryView::entryIconSizeChanged, m_iconSize, show);
    connect(m_iconSize, &QSlider::valueChanged, m_view, [this](int step) {
        if (m_view->entryIconSize().sizeIndex() != step)
            m_view->setEntryIconSize(IconSize(IconSize::sizes[step]));
    });
    show(m_view->entryIconSize());
}

void StatusLine::describeListing()
{
    const int count = entryCount(*m_model);
    if (isListing(*m_model)) {
        m_view->setEmptyText({});
        m_listing->setText(tr("Listing %1 …").arg(printableText(m_model->actualRootEntry().path())));
    } else if (count > 0) {
        m_listing->setText(count == 1 ? tr("1 entry") : tr("%1 entries").arg(locale().toString(count)));
    } else {
        const QString reason = emptyListingReason(*m_model);
        m_view->setEmptyText(reason);
        m_listing->setText(reason);
    }
}

void StatusLine::describeSelection()
{
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    qint64 bytes = 0;
    bool hasFiles = false;
    for (const QModelIndex &row : rows) {
        const Entry entry = m_model->entryByIndex(row);
        if (entry.isFile()) {
            hasFiles = true;
            bytes += entry.fileSize();
        }
    }
    QString text;
    if (rows.size() > 0)
        text = tr("%1 selected").arg(locale().toString(rows.size()));
    if (hasFiles)
        text += QLatin1String(", ") + Core::dataSizeAsString(bytes);
    m_selection->setText(text);
}
