// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "launch.h"

#include <veskfm/appinfo.h>

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QTreeWidget;

/// Lets the user choose with what to open things: the applications for their type, all others, or a command line; once
/// or from now on. Without things to open it only sets the default of a type that the user names.
///
/// Shows itself and deletes itself when it ends; accepted when it did its work.
class ApplicationDialog : public QDialog
{
    Q_OBJECT

public:
    ApplicationDialog(const OpenTargetList &targets, const LaunchContext &context);
    ~ApplicationDialog() override;

private:
    void makeTypeField();
    void layOut();
    void fillApplications();
    void addGroup(const QString &title, const GAppList &apps);
    void browse();
    void apply();
    VeskFM::AppInfo chosen() const;
    void tellProblem(const QString &text);

    const OpenTargetList m_targets;
    const LaunchContext m_context;
    QStringList m_types; // the default is set for each
    QLineEdit *const m_type;
    QTreeWidget *const m_applications;
    QLineEdit *const m_command;
    QCheckBox *const m_always;
    QLabel *const m_problem;
};
