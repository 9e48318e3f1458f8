// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/serviceinterfacesingletone.h>
#include <veskplatform/entry.h>

#include <QFlags>
#include <QObject>

namespace VeskFM
{

/// Client of the desktop service, which opens file-manager windows, shows the desktop and its control dialog.
///
/// Thread: main; calls wait for the service. Errors: a missing service is logged at critical level.
class VESKFM_EXPORT Desktop : public QObject,
                              public ServiceInterfaceSingletone
{
    Q_OBJECT

public:
    enum WindowOption { NoOptions = 0, MountPoint = 1, Simple = 2, FileActions = 4 };
    Q_DECLARE_FLAGS(WindowOptions, WindowOption)
    Q_FLAG(WindowOptions)

    static Desktop *ptr();
    explicit Desktop(QObject *parent = nullptr);
    ~Desktop() override;

    int callRegularWindow(const Entry &entry, WindowOptions options); ///< always 0
    void callDesktop();
    void callControlDialog();

private:
    void callWithoutArguments(const QString &method);

    static Desktop *m_ptr;

    QWeakPointer<QDBusInterface> m_desktop; // held by the base
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Desktop::WindowOptions)

} // namespace VeskFM
