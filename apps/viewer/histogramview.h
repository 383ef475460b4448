#pragma once

#include <QWidget>

#include <vector>

/// A small histogram of heights: bars over their range.
class HistogramView : public QWidget
{
    Q_OBJECT
public:
    explicit HistogramView(QWidget* parent = nullptr);

    /// The counts of equal parts of a range; none show nothing.
    void setBars(const std::vector<std::size_t>& counts, double lower, double upper);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QRect barArea() const;

    std::vector<std::size_t> m_counts;
    double m_lower = 0.0;
    double m_upper = 0.0;
};
