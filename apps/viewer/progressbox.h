#pragma once

#include "export/pictureoptions.h"
#include "loadprogress.h"
#include "standstill.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProgressDialog>

class QPushButton;

/// A box with a bar over a window, which appears when work takes long and can stop it. The window is painted
/// meanwhile, and takes no other input.
class ProgressBox
{
    Q_DECLARE_TR_FUNCTIONS(ProgressBox)

public:
    /// Milliseconds before the box appears.
    static constexpr int patience = 700;

    /// The window's plot, or null without one.
    ProgressBox(const QString& title, QMainWindow& window, PlotPage* page);
    /// Closes the window, if that was asked for meanwhile.
    ~ProgressBox();
    ProgressBox(const ProgressBox&) = delete;
    ProgressBox& operator=(const ProgressBox&) = delete;

    /// Progress to hand to a picture.
    Zel3D::PictureOptions::Progress progress();
    /// Progress to hand to what loads something of a name.
    LoadProgress loadProgress(const QString& name);
    /// Paints what is new in the window before the box goes, if it is there: the first frame of a large plot
    /// takes long.
    void paintWindow();
    /// Cancels the work, and closes the window when it has ended.
    void closeWindowAfterwards();

private:
    bool showLoad(const QString& name, const LoadProgress::Report& report);
    /// Lets the box appear when the work takes longer than the patience, with so many milliseconds to come,
    /// and takes events. False when it was cancelled.
    bool goesOn(double comingTime);
    void appear();

    Standstill m_still;
    QMainWindow& m_window;
    QProgressDialog m_box;
    QPushButton* m_cancel;
    QElapsedTimer m_time;
    bool m_closing = false;
};
