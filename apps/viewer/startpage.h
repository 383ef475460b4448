#pragma once

#include "examples.h"

#include <QList>
#include <QWidget>

class QAction;
class QVBoxLayout;

/// What the window shows without a plot: examples, what can be made and the recent files.
class StartPage : public QWidget
{
    Q_OBJECT
public:
    /// \a openFile and the others are offered by their texts, icons and status tips; not owned.
    StartPage(const QList<Example>& examples, QAction* openFile, const QList<QAction*>& others,
              QWidget* parent = nullptr);

    /// Lists the recent files anew.
    void refresh();

signals:
    void fileChosen(const QString& path);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeHead(QAction* openFile);
    QWidget* makeExamples(const QList<Example>& examples, const QList<QAction*>& others);
    QWidget* makeRecent();
    void addRecent(const QString& path);

    QVBoxLayout* m_recent = nullptr;
};
