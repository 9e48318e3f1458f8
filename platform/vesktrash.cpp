// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/vesktrash.h>

#include <veskplatform/standardpaths.h>

#include <QDir>

std::string VeskTrash::registerFile(const std::string &)
{
    return {};
}

bool VeskTrash::unregisterFile(const std::string &)
{
    return false;
}

std::string VeskTrash::getFilePathToRestore(const std::string &)
{
    return {};
}

long long VeskTrash::getDeletionDate(const std::string &)
{
    return 0;
}

bool VeskTrash::isFileInTrash(const std::string &path)
{
    return path.rfind(VeskFM::StandardPaths::trashDirPath().toStdString() + '/', 0) == 0;
}

bool VeskTrash::isEmpty()
{
    return QDir(VeskFM::StandardPaths::trashDirPath()).isEmpty();
}

unsigned long long VeskTrash::size()
{
    return 0;
}

bool VeskTrash::hasSizeCache()
{
    return false;
}

void VeskTrash::registerDirSize(const std::string &, long long) {}

void VeskTrash::unregisterDirSize(const std::string &) {}

std::string VeskTrash::getTopDirPath()
{
    return QFileInfo(VeskFM::StandardPaths::trashDirPath()).path().toStdString();
}
