// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QListWidget>

/// A list of names with check boxes, for a setting that is a set of them. Names that are in the setting and not offered
/// here stay in it.
class CheckList : public QListWidget
{
    Q_OBJECT

public:
    explicit CheckList(QWidget *parent = nullptr);

    void addName(const QString &name, const QString &text);
    QStringList checkedNames() const;
    QStringList uncheckedNames() const; ///< what setUncheckedNames() was told and is not offered here is in it
    void setCheckedNames(const QStringList &names);
    void setUncheckedNames(const QStringList &names);

Q_SIGNALS:
    void changed(); ///< by the user

private:
    QStringList names(Qt::CheckState state) const;
    void setNames(const QStringList &names, Qt::CheckState state);

    QStringList m_others; // in the setting, not offered
};
