// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "permissions.h"

#include <veskfm/propspluginwidget.h>

#include <QFutureWatcher>

#include <array>

class QCheckBox;
class QLabel;

namespace VeskFM
{

/// Shows who may read, write and execute the entries, and changes it.
///
/// A right that some entries give and others do not stays as it is until its box is checked or cleared. apply() touches
/// only the rights whose boxes were changed; set-id and sticky bits stay. Symbolic links have no permissions: they are
/// left alone, and so is what they lead to.
///
/// Errors: listed on the page, an entry a line; the other entries are changed all the same, and applyFailed() says so.
///
/// For tests and style sheets the boxes are named "user-read" to "others-execute", the labels "owner", "group",
/// "permissions" and "errors".
class PermissionsPage : public PropsPluginWidget
{
    Q_OBJECT

public:
    explicit PermissionsPage(const EntryList &entries, QWidget *parent = nullptr);

public Q_SLOTS:
    void apply() override;

private:
    void createWidgets();
    void load();
    void show(const CommonPermissions &common);
    PermissionErrors change(mode_t changed, mode_t bits);
    void showErrors(const PermissionErrors &errors);

    const EntryList m_entries;
    QFutureWatcher<CommonPermissions> m_reader;
    PermissionErrors m_errors;          // of the last change
    std::array<QCheckBox *, 9> m_boxes; // children; in the order of the bits, from the user's right to read
    std::array<Qt::CheckState, 9> m_loaded;
    QLabel *m_owner = nullptr; // this and the following: children
    QLabel *m_group = nullptr;
    QLabel *m_permissions = nullptr;
    QLabel *m_errorLabel = nullptr;
};

} // namespace VeskFM
