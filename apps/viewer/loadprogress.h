#pragma once

#include <functional>
#include <memory>

/// Tells how far a load has come and asks whether it shall go on.
///
/// Copies and sections belong to the same load: once it is cancelled, all of them say so. An empty one tells
/// nobody and is never cancelled.
class LoadProgress
{
public:
    enum Step { Reading, Drawing };
    struct Report
    {
        Step step = Reading;
        double part = 0.0;    ///< how much of the load is done, 0 to 1, never less than before
        bool busy = false;    ///< nothing will be told before the step ends
        double seconds = 0.0; ///< of a busy step: about how long it takes
    };
    /// Takes a report; false cancels the load.
    using Handler = std::function<bool(const Report&)>;

    /// Milliseconds between two reports: as often as a person can follow.
    static constexpr int usualInterval = 33;

    LoadProgress() = default;
    explicit LoadProgress(Handler handler, int interval = usualInterval);

    /// Tells that a part from 0 to 1 is done, if it is time for it. False when the load is cancelled.
    bool operator()(double part) const;
    /// Tells at once that a step begins that can neither report nor be cancelled before about so many
    /// seconds. False when the load is cancelled.
    bool busy(Step step, double seconds) const;
    /// Progress whose 0 to 1 is a section of this one's.
    LoadProgress section(double from, double to) const;
    bool isCancelled() const;

private:
    struct State;

    bool tell(const Report& report) const;

    std::shared_ptr<State> m_state;
    double m_from = 0.0;
    double m_to = 1.0;
};
