// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What happens once when the library is loaded. The one file of this folder that knows the value types of the others.

#include "core_p.h"

#include <fixedplaces.h>
#include <veskfm/appinfo.h>
#include <veskfm/entrypropertyrequest.h>
#include <veskfm/fopid.h>
#include <veskfm/iconsize.h>
#include <veskfm/newfiletemplate.h>
#include <veskfm/processinfo.h>
#include <veskplatform/entrylist.h>
#include <veskplatform/favoriteplace.h>
#include <veskplatform/storageplace.h>

#include <QCoreApplication>
#include <QDBusMetaType>
#include <QItemSelection>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace VeskFM
{

namespace
{

void installMessageHandler()
{
    qInstallMessageHandler(messageHandler);
}

void registerValueTypes()
{
    qRegisterMetaType<QModelIndexList>("QModelIndexList");
    qRegisterMetaType<QItemSelection>("QItemSelection");
    qRegisterMetaType<AppInfo>();
    qRegisterMetaType<AppInfoList>();
    qRegisterMetaType<ProcessInfo>();
    qRegisterMetaType<ProcessInfoList>();
    qRegisterMetaType<IconSize>();
    qRegisterMetaType<NewFileTemplate>();
    qRegisterMetaType<FOpId>();
    qRegisterMetaType<FavoritePlace>();
    qRegisterMetaType<StoragePlace>();
    qRegisterMetaType<EntryPropertyRequest>();
    qRegisterMetaType<EntryPropertyRequestList>();
    qRegisterMetaType<EntryPropertyRequestList>("EntryPropertyRequestList"); // as the enumerator's signal names it
    qDBusRegisterMetaType<AppInfo>();
    qDBusRegisterMetaType<AppInfoList>();
    registerEntryMetaTypes();
}

void installTranslatorsInto(QCoreApplication *application)
{
    auto *toolkit = new QTranslator(application);
    (void)toolkit->load(QLatin1String("qt_") + QLocale::system().name(),
                        QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    QCoreApplication::installTranslator(toolkit); // even an empty one: a later reload of it takes effect

    auto own = std::make_unique<QTranslator>();
    if (!own->load(QLocale::system(), QStringLiteral("libveskfmcore"), QStringLiteral("_"),
                   QStringLiteral(VESKFM_TRANSLATIONS_DIR)))
        return;
    own->setParent(application);
    QCoreApplication::installTranslator(own.release());
}

/// Runs in the constructor of each application object, and at once where the library is loaded after that.
void installTranslators()
{
    QCoreApplication *const application = QCoreApplication::instance();
    QMetaObject::invokeMethod(application, [application] { installTranslatorsInto(application); });
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(installMessageHandler)
Q_CONSTRUCTOR_FUNCTION(registerValueTypes)
Q_COREAPP_STARTUP_FUNCTION(installTranslators)

} // namespace VeskFM
