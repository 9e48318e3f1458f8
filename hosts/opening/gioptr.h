// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <gio/gdesktopappinfo.h>

#include <memory>
#include <vector>

/// Owners of what GIO hands out.
struct GObjectUnref
{
    template <typename T> void operator()(T *object) const { g_object_unref(object); }
};
struct GKeyFileUnref
{
    void operator()(GKeyFile *file) const { g_key_file_unref(file); }
};
struct GFree
{
    void operator()(char *text) const { g_free(text); }
};
using GAppPtr = std::unique_ptr<GAppInfo, GObjectUnref>;
using GAppList = std::vector<GAppPtr>;
using GTextPtr = std::unique_ptr<char, GFree>;

/// An error of GIO, logged and freed when it goes.
class GErrorGuard
{
public:
    explicit GErrorGuard(const char *what)
        : m_what(what)
    {
    }
    ~GErrorGuard()
    {
        if (m_error)
            qWarning("%s: %s", m_what, m_error->message);
        g_clear_error(&m_error);
    }
    Q_DISABLE_COPY_MOVE(GErrorGuard)

    GError **operator&() { return &m_error; }

private:
    const char *const m_what;
    GError *m_error = nullptr;
};

/// The members of a list that the caller got for good; frees it.
inline GAppList taken(GList *list)
{
    GAppList apps;
    for (const GList *node = list; node; node = node->next)
        apps.emplace_back(G_APP_INFO(node->data));
    g_list_free(list);
    return apps;
}
