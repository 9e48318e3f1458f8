// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/fops.h>

#include <veskfm/corepaths.h>
#include <veskfm/trash.h>
#include <veskfm/vendordomainprefix.h>

#include <QDBusConnection>
#include <QDBusMessage>

namespace VeskFM
{

namespace
{

QString serviceName()
{
    return QLatin1String(VendorDomainPrefix) + QLatin1String(".vesk-fm.fops");
}

QString interfaceName()
{
    return QLatin1String(VendorDomainPrefix) + QLatin1String(".FileManager.FileOperation");
}

QString finishedSignal()
{
    return QStringLiteral("operationFinished");
}

QString sourcesKey()
{
    return QStringLiteral("sources");
}

QString destinationKey()
{
    return QStringLiteral("destination");
}

template <typename T> QVariant packed(const T &value)
{
    return QVariant::fromValue(value);
}

} // namespace

FOps *FOps::m_ptr = nullptr;

FOps *FOps::ptr()
{
    if (!m_ptr)
        new FOps;
    return m_ptr;
}

FOps::FOps(QObject *parent)
    : QObject(parent)
    , ServiceInterfaceSingletone(VeskFM::serviceName())
{
    if (!m_ptr)
        m_ptr = this;
    qRegisterMetaType<OperationType>(); // for queued connections to our signal
    m_fileOperation = createInterface(QStringLiteral("/"), interfaceName());
    // Through the connection, not through the interface object: that would need the service's introspection data to
    // know our types. Results of anybody but the owner of the service's name do not come through.
    QDBusConnection::sessionBus().connect(VeskFM::serviceName(), QStringLiteral("/"), interfaceName(), finishedSignal(),
                                          this, SLOT(finished(QString, int, VeskFM::EntryList)));
}

FOps::~FOps()
{
    if (m_ptr == this)
        m_ptr = nullptr;
}

void FOps::release()
{
    QDBusConnection::sessionBus().disconnect(VeskFM::serviceName(), QStringLiteral("/"), interfaceName(),
                                             finishedSignal(), this, SLOT(finished(QString, int, VeskFM::EntryList)));
    ServiceInterfaceSingletone::release();
}

FOpId FOps::issue(const char *method, const QVariantList &arguments, OperationType type,
                  const QMap<QString, QVariant> &args)
{
    const QString name = QLatin1String(method);
    FOpId id(name);
    const QSharedPointer<QDBusInterface> service = callableInterface(m_fileOperation, QDBus::NoBlock);
    if (!service) // released at quit
        return id;
    if (type != Unknown)
        m_pending.insert(id, {type, args});
    // These two are stamped again, and the record stays under the first stamp; the service's logs show both, so the
    // second is not to be saved.
    if (type == Copy || type == Move)
        id = FOpId(name);
    service->callWithArgumentList(QDBus::NoBlock, name, QVariantList{id.stamp()} + arguments);
    return id;
}

FOpId FOps::remove(const EntryList &entries, bool flag)
{
    return issue("remove", {packed(entries), flag});
}

FOpId FOps::trash(const EntryList &entries, bool flag)
{
    return issue("trash", {packed(entries), flag}, Trash, {{sourcesKey(), packed(entries)}});
}

FOpId FOps::restore(const EntryList &entries)
{
    return issue("restore", {packed(entries)}, Restore, {{sourcesKey(), packed(entries)}});
}

FOpId FOps::cleanTrash()
{
    return issue("cleanTrash", {});
}

FOpId FOps::copy(const EntryList &sources, const Entry &destination)
{
    return issue("copy", {packed(sources), packed(destination)}, Copy,
                 {{sourcesKey(), packed(sources)}, {destinationKey(), packed(destination)}});
}

FOpId FOps::move(const EntryList &sources, const Entry &destination)
{
    return issue("move", {packed(sources), packed(destination)}, Move,
                 {{sourcesKey(), packed(sources)}, {destinationKey(), packed(destination)}});
}

FOpId FOps::rename(const Entry &from, const Entry &to)
{
    return issue("rename", {packed(from), packed(to)}, Rename);
}

FOpId FOps::makeDir(const Entry &entry)
{
    return issue("makeDir", {packed(entry)}, MakeDir);
}

FOpId FOps::makeFile(const Entry &entry)
{
    return issue("makeFile", {packed(entry)}, MakeFile);
}

FOpId FOps::makeShortcut(const Entry &entry)
{
    return issue("makeShortcut", {packed(entry)}, MakeShortcut);
}

FOpId FOps::makeShortcuts(const EntryList &sources, const Entry &destination)
{
    return issue("makeShortcuts", {packed(sources), packed(destination)}, MakeShortcuts,
                 {{sourcesKey(), packed(sources)}, {destinationKey(), packed(destination)}});
}

FOpId FOps::makeTitledShortcut(const QString &url, const QString &title, const Entry &destination)
{
    return issue(
        "makeTitledShortcut", {url, title, packed(destination)}, MakeTitledShortcut,
        {{destinationKey(), packed(destination)}, {QStringLiteral("url"), url}, {QStringLiteral("title"), title}});
}

FOpId FOps::makeFromTemplate(const Entry &entry, const QString &templatePath)
{
    return issue("makeFromTemplate", {packed(entry), templatePath}, MakeFromTemplate,
                 {{QStringLiteral("templatePath"), templatePath}});
}

int FOps::operationProgress(const FOpId &id) const
{
    // The call is made for the service's sake; applications rely on the 0 and get progress elsewhere.
    if (const QSharedPointer<QDBusInterface> service = m_fileOperation.toStrongRef())
        callAndWait(*service, QDBus::AutoDetect, QStringLiteral("operationProgress"), {id.stamp()});
    return 0;
}

QList<NewFileTemplate> FOps::fileTemplates() const
{
    return newFileTemplates();
}

bool FOps::isTrash(const Entry &entry)
{
    return VeskFM::Trash::ptr()->isTrash(entry);
}

bool FOps::isTrashEntries(const EntryList &entries)
{
    return VeskFM::Trash::ptr()->hasEntries(entries);
}

bool FOps::isEmptyTrash()
{
    return VeskFM::Trash::ptr()->isEmpty();
}

void FOps::finished(const QString &stamp, int code, const VeskFM::EntryList &entries)
{
    const FOpId id = FOpId::fromStamp(stamp);
    const Record record = m_pending.take(id);
    Q_EMIT operationFinished(id, code, entries, record.type, record.args);
}

} // namespace VeskFM
