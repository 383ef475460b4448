#include "assimpprogress.h"

#include <stdexcept>

bool AssimpProgress::Update(float percentage)
{
    // Assimp counts the reading as the first half.
    // Every reader tells its beginning, which says nothing of those that tell no more before their end.
    const bool goesOn = percentage <= 0.0F ? !m_progress.isCancelled() : m_progress(2.0 * double(percentage));
    if (!goesOn)
        throw std::runtime_error("cancelled");
    return true;
}
