// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "settingspage.h"

#include "checklist.h"

#include <veskfm/settings.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <utility>

using namespace VeskFM;

SettingsPage::SettingsPage(QWidget *parent)
    : QWidget(parent)
    , m_settings(Settings::ptr())
    , m_layout(new QFormLayout)
{
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(m_layout);
    layout->addStretch();
}

void SettingsPage::load()
{
    for (const std::function<void()> &loader : m_loaders)
        loader();
}

void SettingsPage::addHeading(const QString &text)
{
    auto *const label = new QLabel(text, this);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    m_layout->addRow(label);
}

void SettingsPage::addWide(const QString &text, QWidget *editor)
{
    editor->setAccessibleName(text);
    auto *const outer = static_cast<QVBoxLayout *>(layout());
    outer->insertWidget(0, new QLabel(text, this));
    outer->insertWidget(1, editor, 1);
}

void SettingsPage::addFlag(const char *key, const QString &text, bool (Settings::*get)() const,
                           void (Settings::*set)(bool))
{
    auto *const box = new QCheckBox(text, this);
    box->setObjectName(QLatin1String(key));
    m_layout->addRow(box);
    m_loaders.emplace_back([this, box, get] { box->setChecked((m_settings->*get)()); });
    const std::function<void(Settings *, bool)> write = set; // by itself it looks uninitialised to sanitizing compilers
    connect(box, &QCheckBox::clicked, this, [this, write](bool on) { write(m_settings, on); });
}

void SettingsPage::addFixedFlag(const char *key, const QString &text, bool (Settings::*get)() const)
{
    auto *const box = new QCheckBox(text, this);
    box->setObjectName(QLatin1String(key));
    box->setEnabled(false);
    box->setToolTip(tr("Set by the administrator"));
    m_layout->addRow(box);
    m_loaders.emplace_back([this, box, get] { box->setChecked((m_settings->*get)()); });
}

void SettingsPage::addNumber(const char *key, const QString &text, const QString &unit, int most,
                             std::function<int()> get, std::function<void(int)> set, const QString &textForZero)
{
    auto *const box = new QSpinBox(this);
    box->setObjectName(QLatin1String(key));
    box->setRange(0, most);
    box->setSuffix(QLatin1Char(' ') + unit);
    box->setSpecialValueText(textForZero);
    box->setKeyboardTracking(false); // a number is written when it is complete
    m_layout->addRow(text, box);
    m_loaders.emplace_back([box, get = std::move(get)] {
        const QSignalBlocker blocker(box);
        if (box->value() != get())
            box->setValue(get());
    });
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, std::move(set));
}

void SettingsPage::addShownNames(const char *key, const QString &text, const Names &offered,
                                 std::function<QStringList()> get, std::function<void(const QStringList &)> set)
{
    CheckList *const list = addList(key, text, offered);
    m_loaders.emplace_back([list, get = std::move(get)] { list->setCheckedNames(get()); });
    connect(list, &CheckList::changed, this, [list, set = std::move(set)] { set(list->checkedNames()); });
}

void SettingsPage::addHiddenNames(const char *key, const QString &text, const Names &offered,
                                  std::function<QStringList()> get, std::function<void(const QStringList &)> set)
{
    CheckList *const list = addList(key, text, offered);
    m_loaders.emplace_back([list, get = std::move(get)] { list->setUncheckedNames(get()); });
    connect(list, &CheckList::changed, this, [list, set = std::move(set)] { set(list->uncheckedNames()); });
}

CheckList *SettingsPage::addList(const char *key, const QString &text, const Names &offered)
{
    auto *const list = new CheckList(this);
    list->setObjectName(QLatin1String(key));
    list->setAccessibleName(text);
    for (const QPair<QString, QString> &name : offered)
        list->addName(name.first, name.second);
    m_layout->addRow(text, list);
    return list;
}
