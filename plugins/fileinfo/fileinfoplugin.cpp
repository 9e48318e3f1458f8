// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fileinfoplugin.h"

#include "contentwidget.h"
#include "diskpath.h"
#include "fileinfopropertyset.h"
#include "modifiedwidget.h"
#include "permissionspage.h"
#include "selectionsize.h"
#include "sizerangewidget.h"

#include <veskfm/core.h>

#include <QCoreApplication>

#include <algorithm>

namespace VeskFM
{

namespace
{
constexpr int priority = 100; // of two plug-ins with the same number only one is used
}

QString FileInfoPlugin::pluginName() const
{
    return QCoreApplication::translate("FileInfo", "File information");
}

QString FileInfoPlugin::pluginDescription() const
{
    return QCoreApplication::translate("FileInfo", "Size, time of the last change, owner and permissions of files.");
}

QString FileInfoPlugin::propsPageTitle() const
{
    return QCoreApplication::translate("FileInfo", "Permissions");
}

int FileInfoPlugin::orderPriority()
{
    return priority;
}

bool FileInfoPlugin::hasTextDigest()
{
    return true;
}

QString FileInfoPlugin::textDigest(const EntryList &entries, bool *running)
{
    const bool isOneFile = entries.size() == 1 && entries.first().isFile() && !entries.first().isArchiveMountPoint();
    if (isOneFile) // descriptions of one begin with its size
        return {};
    SelectionSize size(running);
    if (!size.add(entries) || size.files() + size.directories() == 0)
        return {};
    return QCoreApplication::translate("FileInfo", "%1 in %n file(s)", nullptr, size.files())
        .arg(Core::dataSizeAsString(size.bytes()));
}

bool FileInfoPlugin::hasPropsWidgetFor(const EntryList &entries)
{
    return !entries.isEmpty() && std::all_of(entries.cbegin(), entries.cend(), isOnDisk);
}

PropsPluginWidget *FileInfoPlugin::createPropsWidget(const EntryList &entries, QWidget *parent)
{
    return hasPropsWidgetFor(entries) ? new PermissionsPage(entries, parent) : nullptr;
}

bool FileInfoPlugin::hasFindWidget()
{
    return true;
}

QList<QWidget *> FileInfoPlugin::createFindWidgets(QWidget *parent)
{
    return {new ContentWidget(parent), new SizeRangeWidget(false, parent), new ModifiedWidget(parent)};
}

QList<QWidget *> FileInfoPlugin::createFilterWidgets(QWidget *parent)
{
    return {new SizeRangeWidget(true, parent)};
}

int FileInfoPlugin::propertySetSize() const
{
    return FileInfoPropertySet::ColumnCount;
}

QVariant FileInfoPlugin::propertyHeaderData(int index, int role)
{
    return FileInfoPropertySet::headerData(index, role);
}

bool FileInfoPlugin::isPropertySortable(int index)
{
    return index >= 0 && index < FileInfoPropertySet::ColumnCount;
}

EntryPropertySet *FileInfoPlugin::createPropertySet() const
{
    return new FileInfoPropertySet;
}

} // namespace VeskFM
