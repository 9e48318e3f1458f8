// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "findquery.h"

#include <QWidget>

#include <atomic>

class QCheckBox;
class QFormLayout;
class QLineEdit;

namespace VeskFM
{
class EntryMatchWidget;
}

/// What a search can be asked for: where, names, and what the plug-ins know to ask.
class FindForm : public QWidget
{
    Q_OBJECT

public:
    explicit FindForm(QWidget *parent = nullptr);

    void setStart(const VeskFM::Entry &start);
    /// @param running see EntryMatchWidget::createValidator()
    /// @return with a null start when what is typed names no folder
    FindQuery query(const std::atomic<bool> *running) const;
    QString startText() const; ///< as typed
    void focusNames();

private:
    void addPluginWidgets(QFormLayout *layout);
    void browse();
    VeskFM::Entry enteredStart() const;

    VeskFM::Entry m_start; // what the text stood for when it was set
    QLineEdit *m_where;    // children
    QLineEdit *m_names;
    QCheckBox *m_subdirectories;
    QCheckBox *m_hidden;
    QCheckBox *m_archives;
    QList<VeskFM::EntryMatchWidget *> m_matchWidgets; // children
};
