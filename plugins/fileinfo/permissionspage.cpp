// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "permissionspage.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QEventLoop>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QProgressDialog>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QtConcurrentRun>

#include <sys/stat.h>

namespace VeskFM
{

namespace
{

constexpr int mostAtOnce = 100; // no longer in the GUI thread than it takes to show them

QString translated(const char *text)
{
    return QCoreApplication::translate("FileInfo", text);
}

mode_t bitOf(size_t box)
{
    return mode_t(S_IRUSR) >> box;
}

} // namespace

PermissionsPage::PermissionsPage(const EntryList &entries, QWidget *parent)
    : PropsPluginWidget(parent)
    , m_entries(entries)
{
    createWidgets();
    connect(&m_reader, &QFutureWatcherBase::finished, this, [this] { show(m_reader.result()); });
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
    m_errorLabel = label("errors");
    m_errorLabel->setWordWrap(true);
    m_errorLabel->hide();

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
    layout->addWidget(m_errorLabel);
    layout->addStretch();
}

/// Shows what is on the disk now.
void PermissionsPage::load()
{
    if (m_entries.size() <= mostAtOnce) {
        show(CommonPermissions::of(m_entries));
        return;
    }
    for (QCheckBox *box : m_boxes)
        box->setEnabled(false);
    m_reader.setFuture(QtConcurrent::run(&CommonPermissions::of, m_entries));
}

void PermissionsPage::show(const CommonPermissions &common)
{
    m_owner->setText(common.owner);
    m_group->setText(common.group);
    m_permissions->setText(common.text);
    for (size_t i = 0; i < m_boxes.size(); ++i) {
        const bool isForAll = common.canChange && common.all & bitOf(i);
        const bool isMixed = !isForAll && common.any & bitOf(i);
        m_loaded[i] = isMixed ? Qt::PartiallyChecked : isForAll ? Qt::Checked : Qt::Unchecked;
        const QSignalBlocker blocker(m_boxes[i]);
        m_boxes[i]->setTristate(isMixed);
        m_boxes[i]->setCheckState(m_loaded[i]);
        m_boxes[i]->setEnabled(common.canChange);
    }
    showErrors(m_errors.count > 0 ? m_errors : common.errors);
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
    m_errors = change(changed, bits);
    load();
    if (m_errors.count > 0)
        Q_EMIT applyFailed(translated(QT_TRANSLATE_NOOP("FileInfo", "Not all permissions could be changed.")));
}

/// Returns when it is done. Meanwhile, if it takes long, the user sees that, and can stop it.
PermissionErrors PermissionsPage::change(mode_t changed, mode_t bits)
{
    std::atomic<bool> running{true};
    if (m_entries.size() <= mostAtOnce)
        return changePermissions(m_entries, changed, bits, &running);
    QProgressDialog progress(translated(QT_TRANSLATE_NOOP("FileInfo", "Changing permissions …")),
                             translated(QT_TRANSLATE_NOOP("FileInfo", "Stop")), 0, 0, window());
    progress.setWindowModality(Qt::ApplicationModal); // nobody may close the page behind it
    connect(&progress, &QProgressDialog::canceled, &progress, [&running] { running = false; });
    QFutureWatcher<PermissionErrors> worker;
    QEventLoop loop;
    connect(&worker, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    worker.setFuture(QtConcurrent::run(&changePermissions, m_entries, changed, bits, &running));
    progress.show();
    loop.exec();
    return worker.result();
}

void PermissionsPage::showErrors(const PermissionErrors &errors)
{
    QStringList lines = errors.lines;
    if (errors.count > lines.size())
        lines << QCoreApplication::translate("FileInfo", "and %n more", nullptr, errors.count - lines.size());
    if (!lines.isEmpty())
        lines.prepend(
            translated(QT_TRANSLATE_NOOP("FileInfo", "The permissions of these could not be read or changed:")));
    m_errorLabel->setText(lines.join(QLatin1Char('\n')));
    m_errorLabel->setVisible(!lines.isEmpty());
}

} // namespace VeskFM
