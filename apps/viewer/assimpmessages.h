#pragma once

#include <QStringList>

/// Gathers what Assimp complains of about the shape of a file while the object lives. One at a time.
class AssimpMessages
{
public:
    AssimpMessages();
    ~AssimpMessages();
    AssimpMessages(const AssimpMessages&) = delete;
    AssimpMessages& operator=(const AssimpMessages&) = delete;

    /// The first few different complaints, without a full stop. Those on materials are none: a plot has its
    /// own colours.
    const QStringList& texts() const { return m_texts; }

private:
    class Stream;
    QStringList m_texts;
};
