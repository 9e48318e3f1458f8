// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "pathbar.h"

#include "containers.h"
#include "printabletext.h"

#include <veskplatform/vfs.h>

#include <QDir>
#include <QKeyEvent>

using namespace VeskFM;

PathBar::PathBar(QWidget *parent)
    : QLineEdit(parent)
{
    setPlaceholderText(tr("Folder"));
    connect(this, &QLineEdit::returnPressed, this, &PathBar::takeText);
}

void PathBar::setDirectory(const Entry &directory)
{
    m_directory = directory;
    setText(directory.path());
}

void PathBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    setDirectory(m_directory);
    Q_EMIT left();
}

void PathBar::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    Q_EMIT focused();
}

void PathBar::takeText()
{
    const Entry entry = VFS::ptr()->entry(enteredPath());
    if (entry.isNull() || !VFS::ptr()->isEntryExists(entry))
        Q_EMIT entryRefused(tr("There is no %1").arg(printableText(text())));
    else if (!canBeShown(entry))
        Q_EMIT entryRefused(tr("%1 is not a folder").arg(printableText(text())));
    else
        Q_EMIT directoryEntered(entry);
}

QString PathBar::enteredPath() const
{
    const QString entered = text();
    if (entered == QLatin1String("~") || entered.startsWith(QLatin1String("~/")))
        return QDir::cleanPath(VFS::ptr()->homeEntry().path() + entered.mid(1));
    if (entered.startsWith(QLatin1Char('/')))
        return QDir::cleanPath(entered);
    if (entered.contains(QLatin1String(":/")))
        return VFS::ptr()->localPath(entered);
    if (entered == m_directory.path()) // the path of a place
        return entered;
    return QDir::cleanPath(m_directory.path() + QLatin1Char('/') + entered);
}
