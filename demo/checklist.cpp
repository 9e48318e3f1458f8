// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "checklist.h"

#include <QSignalBlocker>

CheckList::CheckList(QWidget *parent)
    : QListWidget(parent)
{
    connect(this, &QListWidget::itemChanged, this, &CheckList::changed);
}

void CheckList::addName(const QString &name, const QString &text)
{
    const QSignalBlocker blocker(this);
    auto *const item = new QListWidgetItem(text, this);
    item->setData(Qt::UserRole, name);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
    const int row = sizeHintForRow(0) + 1;
    setMaximumHeight(row * count() + 2 * frameWidth() + 2);
}

QStringList CheckList::checkedNames() const
{
    return names(Qt::Checked);
}

QStringList CheckList::uncheckedNames() const
{
    return names(Qt::Unchecked);
}

void CheckList::setCheckedNames(const QStringList &names)
{
    setNames(names, Qt::Checked);
}

void CheckList::setUncheckedNames(const QStringList &names)
{
    setNames(names, Qt::Unchecked);
}

QStringList CheckList::names(Qt::CheckState state) const
{
    QStringList found = m_others;
    for (int row = 0; row < count(); ++row) {
        if (item(row)->checkState() == state)
            found += item(row)->data(Qt::UserRole).toString();
    }
    return found;
}

void CheckList::setNames(const QStringList &names, Qt::CheckState state)
{
    const QSignalBlocker blocker(this);
    m_others = names;
    for (int row = 0; row < count(); ++row) {
        const bool isNamed = m_others.removeAll(item(row)->data(Qt::UserRole).toString()) > 0;
        item(row)->setCheckState(isNamed == (state == Qt::Checked) ? Qt::Checked : Qt::Unchecked);
    }
}
