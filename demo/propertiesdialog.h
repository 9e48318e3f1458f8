// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QDialog>
#include <QSet>

class QDialogButtonBox;
class QLabel;
class QTabWidget;

namespace VeskFM
{
class PropsPlugin;
class PropsPluginWidget;
} // namespace VeskFM

/// Shows what is known of a selection, with a page for each plug-in that has one, and lets the pages change it.
class PropertiesDialog : public QDialog
{
    Q_OBJECT

public:
    /// Shows the dialog for @p entries, the one that there is already if there is. It deletes itself when it is closed.
    static PropertiesDialog *open(const VeskFM::EntryList &entries, QWidget *parent);

    explicit PropertiesDialog(const VeskFM::EntryList &entries, QWidget *parent = nullptr); ///< not empty

public Q_SLOTS:
    void accept() override; ///< closes if all that was changed could be applied

private:
    void addPage(VeskFM::PropsPlugin *plugin);
    bool apply();
    bool applyPage(VeskFM::PropsPluginWidget *page);
    void showState();

    const VeskFM::EntryList m_entries;
    QString m_title;
    QTabWidget *m_pages; // children
    QLabel *m_problem;
    QDialogButtonBox *m_buttons;
    QSet<VeskFM::PropsPluginWidget *> m_changed; // pages with edits that are not applied
    QString m_failure;                           // of the page that is being applied
};
