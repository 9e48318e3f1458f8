// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class QFormLayout;

namespace VeskFM
{
class Settings;
}

/// Editors of some settings, one below the other. An editor writes its setting at once; what others write shows up with
/// load(). Each editor's name is the key of its setting.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    using Names = QList<QPair<QString, QString>>; ///< as the setting has them, and translated

    explicit SettingsPage(QWidget *parent = nullptr);

    void load(); ///< shows what the settings are; an editor in which somebody types stays as it is

    void addHeading(const QString &text);
    void addWide(const QString &text, QWidget *editor); ///< looks after its setting by itself; stands on top
    void addFlag(const char *key, const QString &text, bool (VeskFM::Settings::*get)() const,
                 void (VeskFM::Settings::*set)(bool));
    void addFixedFlag(const char *key, const QString &text, bool (VeskFM::Settings::*get)() const); ///< disabled
    void addNumber(const char *key, const QString &text, const QString &unit, int most, std::function<int()> get,
                   std::function<void(int)> set, const QString &textForZero = {});
    void addShownNames(const char *key, const QString &text, const Names &offered, std::function<QStringList()> get,
                       std::function<void(const QStringList &)> set); ///< the setting lists what is checked
    void addHiddenNames(const char *key, const QString &text, const Names &offered, std::function<QStringList()> get,
                        std::function<void(const QStringList &)> set); ///< the setting lists what is not checked

private:
    class CheckList *addList(const char *key, const QString &text, const Names &offered);

    VeskFM::Settings *const m_settings; // the one instance
    QFormLayout *m_layout;
    std::vector<std::function<void()>> m_loaders;
};
