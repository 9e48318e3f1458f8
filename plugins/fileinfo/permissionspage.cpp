// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "permissionspage.h"

#include "diskpath.h"
#include "permissiontext.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VeskFM
{

namespace
{

constexpr int shownErrors = 5;
constexpr mode_t permissionBits = 07777;

QString translated(const char *text)
{
    return QCoreApplication::translate("FileInfo", text);
}

mode_t bitOf(size_t box)
{
    return mode_t(S_IRUSR) >> box;
}

/// Replaces the bits @p changed of the permissions of exactly the file at @p path. Returns 0 or an error of errno.
int changePermissions(const QByteArray &path, mode_t changed, mode_t bits)
{
    // Held by a descriptor from the look to the change: whatever takes its name meanwhile, above all a link, is not
    // touched. O_PATH needs no right to read the file.
    const int descriptor = open(path.constData(), O_PATH | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return errno;
    struct stat found = {};
    int error = 0;
    if (fstat(descriptor, &found) != 0) {
        error = errno;
    } else if (!S_ISLNK(found.st_mode)) {
        const QByteArray name = "/proc/self/fd/" + QByteArray::number(descriptor);
        if (chmod(name.constData(), (found.st_mode & permissionBits & ~changed) | bits) != 0)
            error = errno;
    }
    close(descriptor);
    return error;
}

/// The text of all entries, when it is the same.
void merge(QString &text, const QString &next, bool first)
{
    if (first)
        text = next;
    else if (text != next)
        text = translated(QT_TRANSLATE_NOOP("FileInfo", "(various)"));
}

} // namespace

PermissionsPage::PermissionsPage(const EntryList &entries, QWidget *parent)
    : PropsPluginWidget(parent)
{
    for (const Entry &entry : entries)
        m_targets.push_back({entry.fileName(), diskPath(entry)});
    createWidgets();
    load();
}

void PermissionsPage::createWidgets()
{
    const auto label = [this](const char *name) {
        auto *result = new QLabel(this);
        result->setObjectName(QLatin1String(name));
        result->setTextFormat(Qt::PlainText); // names of files are no markup
        result->setTextInteractionFlags(Qt::TextSelectableByMouse);
        return result;
    };
    m_owner = label("owner");
    m_group = label("group");
    m_permissions = label("permissions");
    m_errors = label("errors");
    m_errors->setWordWrap(true);
    m_errors->hide();

    auto *facts = new QFormLayout;
    facts->addRow(translated(QT_TRANSLATE_NOOP("FileInfo", "Owner:")), m_owner);
    facts->addRow(translated(QT_TRANSLATE_NOOP("FileInfo", "Group:")), m_group);
    facts->addRow(translated(QT_TRANSLATE_NOOP("FileInfo", "Permissions:")), m_permissions);

    const char *const who[] = {QT_TRANSLATE_NOOP("FileInfo", "Owner"), QT_TRANSLATE_NOOP("FileInfo", "Group"),
                               QT_TRANSLATE_NOOP("FileInfo", "Others")};
    const char *const what[] = {QT_TRANSLATE_NOOP("FileInfo", "Read"), QT_TRANSLATE_NOOP("FileInfo", "Write"),
                                QT_TRANSLATE_NOOP("FileInfo", "Execute")};
    const char *const whoNames[] = {"user", "group", "others"};
    const char *const whatNames[] = {"read", "write", "execute"};
    auto *rights = new QGridLayout;
    for (int row = 0; row < 3; ++row) {
        rights->addWidget(new QLabel(translated(who[row]), this), row, 0);
        for (int column = 0; column < 3; ++column) {
            auto *box = new QCheckBox(translated(what[column]), this);
            box->setObjectName(QLatin1String(whoNames[row]) + QLatin1Char('-') + QLatin1String(whatNames[column]));
            connect(box, &QCheckBox::stateChanged, this, &PropsPluginWidget::changed);
            rights->addWidget(box, row, column + 1);
            m_boxes[size_t(row * 3 + column)] = box;
        }
    }

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(facts);
    layout->addLayout(rights);
    layout->addWidget(m_errors);
    layout->addStretch();
}

/// Shows what is on the disk now.
void PermissionsPage::load()
{
    mode_t all = permissionBits;
    mode_t any = 0;
    bool first = true;
    bool canChange = false;
    QString owner, group, permissions;
    QStringList errors;
    for (const Target &target : m_targets) {
        struct stat found = {};
        if (lstat(target.path.constData(), &found) != 0) {
            errors << target.name + QLatin1String(": ") + qt_error_string(errno);
            continue;
        }
        merge(owner, userName(found.st_uid), first);
        merge(group, groupName(found.st_gid), first);
        merge(permissions, permissionText(found.st_mode), first);
        first = false;
        if (S_ISLNK(found.st_mode))
            continue;
        canChange = true;
        all &= found.st_mode;
        any |= found.st_mode;
    }
    m_owner->setText(owner);
    m_group->setText(group);
    m_permissions->setText(permissions);
    for (size_t i = 0; i < m_boxes.size(); ++i) {
        const bool isMixed = !(all & bitOf(i)) && any & bitOf(i);
        m_loaded[i] = isMixed ? Qt::PartiallyChecked : canChange && all & bitOf(i) ? Qt::Checked : Qt::Unchecked;
        const QSignalBlocker blocker(m_boxes[i]);
        m_boxes[i]->setTristate(isMixed);
        m_boxes[i]->setCheckState(m_loaded[i]);
        m_boxes[i]->setEnabled(canChange);
    }
    showErrors(errors);
}

void PermissionsPage::apply()
{
    mode_t changed = 0;
    mode_t bits = 0;
    for (size_t i = 0; i < m_boxes.size(); ++i) {
        const Qt::CheckState state = m_boxes[i]->checkState();
        if (state == m_loaded[i])
            continue;
        changed |= bitOf(i);
        if (state == Qt::Checked)
            bits |= bitOf(i);
    }
    if (!changed)
        return;
    QStringList errors;
    for (const Target &target : m_targets) {
        const int error = changePermissions(target.path, changed, bits);
        if (error != 0)
            errors << target.name + QLatin1String(": ") + qt_error_string(error);
    }
    load();
    if (errors.isEmpty())
        return;
    showErrors(errors);
    Q_EMIT applyFailed(translated(QT_TRANSLATE_NOOP("FileInfo", "Not all permissions could be changed.")));
}

void PermissionsPage::showErrors(const QStringList &errors)
{
    QStringList lines = errors.mid(0, shownErrors);
    if (errors.size() > shownErrors)
        lines << QCoreApplication::translate("FileInfo", "and %n more", nullptr, errors.size() - shownErrors);
    if (!lines.isEmpty())
        lines.prepend(
            translated(QT_TRANSLATE_NOOP("FileInfo", "The permissions of these could not be read or changed:")));
    m_errors->setText(lines.join(QLatin1Char('\n')));
    m_errors->setVisible(!lines.isEmpty());
}

} // namespace VeskFM
