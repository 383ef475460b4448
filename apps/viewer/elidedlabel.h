#pragma once

#include <QLabel>

/// A line of plain text that takes the room that is left to it, and ends in dots and says the rest in its
/// tool tip where that is too little.
class ElidedLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText() const;
};
