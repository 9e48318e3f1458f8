// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/model.h>

#include <QApplication>
#include <QTextStream>

using namespace VeskFM;

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    Model model(Model::TableMode, ModelFilter::AllEntries, nullptr);
    QObject::connect(&model, &Model::dirListed, [&model] {
        QTextStream out(stdout);
        for (int row = 0; row < model.rowCount(); ++row)
            out << model.index(row, 0).data().toString() << '\n';
        QCoreApplication::quit();
    });
    model.rebuild(VFS::ptr()->entry(app.arguments().value(1, QStringLiteral("/"))));
    return QApplication::exec();
}
