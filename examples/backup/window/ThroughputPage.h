// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef THROUGHPUTPAGE_H
#define THROUGHPUTPAGE_H

#include <QWidget>

class BackupRun;

/// The bytes backed up in each second of the last half hour.
class ThroughputPage : public QWidget
{
    Q_OBJECT

public:
    /// The run is not owned.
    explicit ThroughputPage(const BackupRun *run, QWidget *parent = nullptr);
};

#endif
