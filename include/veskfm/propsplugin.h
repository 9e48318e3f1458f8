// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/plugin.h>
#include <veskfm/vendordomainprefix.h>
#include <veskplatform/entrylist.h>

#include <QList>
#include <QObject>
#include <QVariant>

class QWidget;

/// The interface id of property plug-ins, for Q_PLUGIN_METADATA.
#define VESKFM_PROPSPLUGIN_IID VESKFM_VENDOR_DOMAIN_PREFIX ".vesk-fm.PropsPlugin/1.0"

namespace VeskFM
{

class EntryPropertySet;
class PropsPluginWidget;

/// A property plug-in: further columns, emblems, pages of the properties dialog, widgets of the find dialog, and text
/// digests of a selection. Everything beyond the names is optional.
///
/// The root object of the shared library derives from QObject and PropsPlugin and names this interface by Q_INTERFACES
/// and VESKFM_PROPSPLUGIN_IID. Its constructor runs while plug-ins are being loaded: leave Props and CorePluginsManager
/// alone there, they are not complete. Plug-ins are loaded once and stay. At most 7 of them may be loaded: the eighth ends
/// the program at the first row.
///
/// Thread: GUI, except textDigest(). The sets that createPropertySet() makes also work on a pool thread.
class VESKFM_EXPORT PropsPlugin : public Plugin
{
public:
    virtual QString propsPageTitle() const = 0; ///< of the plug-in's page in the properties dialog, translated

    /// Position among the plug-ins, ascending; use a number of your own: of two plug-ins with the same one only that which
    /// the directory lists later is used. Default: 0.
    virtual int orderPriority();

    virtual bool hasTextDigest(); ///< default: false
    /// One phrase about @p entries, for example their total size; may block. @p running becomes false when the result is
    /// no longer wanted: read it atomically. Default: empty.
    ///
    /// Thread: a worker.
    virtual QString textDigest(const EntryList &entries, bool *running);

    virtual bool hasFindWidget();                             ///< default: false
    virtual bool hasPropsWidgetFor(const EntryList &entries); ///< default: false
    /// Further questions of the find dialog, EntryMatchWidgets: children of @p parent; default: none.
    virtual QList<QWidget *> createFindWidgets(QWidget *parent);
    /// Further questions of the filter bar, EntryMatchWidgets: children of @p parent; default: none.
    virtual QList<QWidget *> createFilterWidgets(QWidget *parent);
    /// A page for @p entries, child of @p parent. Default: null.
    virtual PropsPluginWidget *createPropsWidget(const EntryList &entries, QWidget *parent);

    virtual int propertySetSize() const; ///< number of columns, the same at every call; default: 0
    /// Header data of column @p index, counted within the plug-in; role 256 is its internal, untranslated name. Default:
    /// invalid.
    virtual QVariant propertyHeaderData(int index, int role);
    virtual bool isPropertySortable(int index); ///< default: false
    /// A new set with this plug-in's columns and emblems, owned by the caller. Default: null.
    virtual EntryPropertySet *createPropertySet() const;
    virtual bool providesEmblems() const; ///< whether the emblems of its sets are asked for; default: false
};

} // namespace VeskFM

Q_DECLARE_INTERFACE(VeskFM::PropsPlugin, VESKFM_PROPSPLUGIN_IID)
