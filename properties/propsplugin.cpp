// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/propsplugin.h>

namespace VeskFM
{

int PropsPlugin::orderPriority()
{
    return 0;
}

bool PropsPlugin::hasTextDigest()
{
    return false;
}

QString PropsPlugin::textDigest(const EntryList &, bool *)
{
    return {};
}

bool PropsPlugin::hasFindWidget()
{
    return false;
}

bool PropsPlugin::hasPropsWidgetFor(const EntryList &)
{
    return false;
}

QList<QWidget *> PropsPlugin::createFindWidgets(QWidget *)
{
    return {};
}

QList<QWidget *> PropsPlugin::createFilterWidgets(QWidget *)
{
    return {};
}

PropsPluginWidget *PropsPlugin::createPropsWidget(const EntryList &, QWidget *)
{
    return nullptr;
}

int PropsPlugin::propertySetSize() const
{
    return 0;
}

QVariant PropsPlugin::propertyHeaderData(int, int)
{
    return {};
}

bool PropsPlugin::isPropertySortable(int)
{
    return false;
}

EntryPropertySet *PropsPlugin::createPropertySet() const
{
    return nullptr;
}

bool PropsPlugin::providesEmblems() const
{
    return false;
}

} // namespace VeskFM
