// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "associations.h"
#include "launch.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// Lets the user choose with what to open entries: the applications for their type, all others, or a command line; once
/// or from now on. Without entries it only sets the default of a type that the user names. Shows itself, and deletes
/// itself when it is closed.
class ApplicationDialog : public QDialog
{
    Q_OBJECT

public:
    ApplicationDialog(const VeskFM::EntryList &entries, const LaunchContext &context);
    ~ApplicationDialog() override;

Q_SIGNALS:
    void opened(bool started); ///< the user has chosen, and the application was or was not started

private:
    void fillApplications();
    void addGroup(const QString &title, const GAppList &apps);
    void browse();
    void apply();
    GAppPtr chosen() const;

    const VeskFM::EntryList m_entries;
    const LaunchContext m_context;
    QLineEdit *m_type = nullptr;
    QTreeWidget *m_applications = nullptr;
    QLineEdit *m_command = nullptr;
    QCheckBox *m_always = nullptr;
};
