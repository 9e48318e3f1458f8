// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "modifiedwidget.h"

#include "modifiedmatch.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDateTime>
#include <QHBoxLayout>

namespace VeskFM
{

namespace
{

struct Period
{
    const char *text;
    qint64 seconds;
};
constexpr qint64 hour = 3600;
constexpr qint64 day = 24 * hour;
const Period periods[] = {{QT_TRANSLATE_NOOP("FileInfo", "at any time"), 0},
                          {QT_TRANSLATE_NOOP("FileInfo", "in the last hour"), hour},
                          {QT_TRANSLATE_NOOP("FileInfo", "in the last 24 hours"), day},
                          {QT_TRANSLATE_NOOP("FileInfo", "in the last 7 days"), 7 * day},
                          {QT_TRANSLATE_NOOP("FileInfo", "in the last 30 days"), 30 * day},
                          {QT_TRANSLATE_NOOP("FileInfo", "in the last 365 days"), 365 * day}};

} // namespace

ModifiedWidget::ModifiedWidget(QWidget *parent)
    : EntryMatchWidget(parent)
    , m_period(new QComboBox(this))
{
    setWindowTitle(QCoreApplication::translate("FileInfo", "Modified"));
    setFocusProxy(m_period);
    m_period->setObjectName(QStringLiteral("period"));
    for (const Period &period : periods)
        m_period->addItem(QCoreApplication::translate("FileInfo", period.text), period.seconds);
    connect(m_period, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &EntryMatchWidget::changed);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_period);
    layout->addStretch();
}

EntryMatchValidator *ModifiedWidget::createValidator(const std::atomic<bool> *) const
{
    const qint64 seconds = m_period->currentData().toLongLong();
    return seconds > 0 ? new ModifiedMatch(QDateTime::currentSecsSinceEpoch() - seconds) : nullptr;
}

} // namespace VeskFM
