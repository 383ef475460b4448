#pragma once

#include "loadprogress.h"

#include <assimp/ProgressHandler.hpp>

/// Tells a load how far Assimp has come, where the format's reader says so.
class AssimpProgress : public Assimp::ProgressHandler
{
public:
    explicit AssimpProgress(const LoadProgress& progress) : m_progress(progress) {}

    /// Ends the reading by an exception when the load is cancelled: readers pass over a false.
    bool Update(float percentage) override;

private:
    LoadProgress m_progress;
};
