// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "listingcurtain.h"

#include "listingstate.h"

#include <veskfm/model.h>

#include <QWidget>

using namespace VeskFM;

namespace
{
constexpr int longestHoldMs = 150;
} // namespace

ListingCurtain::ListingCurtain(Model *model, QWidget *stage)
    : QObject(stage)
    , m_model(model)
    , m_stage(stage)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(longestHoldMs);
    connect(&m_timer, &QTimer::timeout, this, &ListingCurtain::release);
    connect(model, &QAbstractItemModel::modelReset, this, &ListingCurtain::hold);
    connect(model, &Model::dirListed, this, &ListingCurtain::release);
}

void ListingCurtain::hold()
{
    if (!isListing(*m_model))
        return;
    m_stage->setUpdatesEnabled(false);
    m_timer.start();
}

void ListingCurtain::release()
{
    m_timer.stop();
    m_stage->setUpdatesEnabled(true);
}
