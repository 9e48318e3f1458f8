// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sizerangewidget.h"

#include "sizematch.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

#include <limits>

namespace VeskFM
{

namespace
{

constexpr int noLimit = -1;
constexpr int largestNumber = 999999;
constexpr int usualUnit = 1; // KB
const char *const units[] = {QT_TRANSLATE_NOOP("FileInfo", "B"), QT_TRANSLATE_NOOP("FileInfo", "KB"),
                             QT_TRANSLATE_NOOP("FileInfo", "MB"), QT_TRANSLATE_NOOP("FileInfo", "GB")};

QString translated(const char *text)
{
    return QCoreApplication::translate("FileInfo", text);
}

} // namespace

bool SizeRangeWidget::Limit::isSet() const
{
    return number->value() != noLimit;
}

qint64 SizeRangeWidget::Limit::unitBytes() const
{
    return qint64(1) << (10 * unit->currentIndex());
}

qint64 SizeRangeWidget::Limit::bytes() const
{
    return number->value() * unitBytes();
}

SizeRangeWidget::SizeRangeWidget(bool acceptsDirectories, QWidget *parent)
    : EntryMatchWidget(parent)
    , m_acceptsDirectories(acceptsDirectories)
{
    setWindowTitle(translated(QT_TRANSLATE_NOOP("FileInfo", "Size")));
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_least = addLimit(translated(QT_TRANSLATE_NOOP("FileInfo", "from")), QStringLiteral("least"));
    m_most = addLimit(translated(QT_TRANSLATE_NOOP("FileInfo", "to")), QStringLiteral("most"));
    layout->addStretch();
}

SizeRangeWidget::Limit SizeRangeWidget::addLimit(const QString &label, const QString &name)
{
    const Limit limit{new QSpinBox(this), new QComboBox(this)};
    limit.number->setObjectName(name);
    limit.number->setRange(noLimit, largestNumber);
    limit.number->setSpecialValueText(translated(QT_TRANSLATE_NOOP("FileInfo", "any")));
    limit.number->setValue(noLimit);
    limit.number->setAccessibleName(label);
    limit.unit->setObjectName(name + QLatin1String("Unit"));
    limit.unit->setAccessibleName(translated(QT_TRANSLATE_NOOP("FileInfo", "Unit")));
    for (const char *unit : units)
        limit.unit->addItem(translated(unit));
    limit.unit->setCurrentIndex(usualUnit);
    connect(limit.number, QOverload<int>::of(&QSpinBox::valueChanged), this, &EntryMatchWidget::changed);
    connect(limit.unit, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this, limit] {
        if (limit.isSet())
            Q_EMIT changed();
    });
    layout()->addWidget(new QLabel(label, this));
    layout()->addWidget(limit.number);
    layout()->addWidget(limit.unit);
    return limit;
}

EntryMatchValidator *SizeRangeWidget::createValidator(const std::atomic<bool> *) const
{
    if (!m_least.isSet() && !m_most.isSet())
        return nullptr;
    const qint64 most = m_most.isSet() ? m_most.bytes() : std::numeric_limits<qint64>::max();
    return new SizeMatch(m_least.isSet() ? m_least.bytes() : 0, most, m_acceptsDirectories);
}

} // namespace VeskFM
