#include "assimpmessages.h"

#include <QRegularExpression>

#include <assimp/DefaultLogger.hpp>
#include <assimp/LogStream.hpp>

class AssimpMessages::Stream : public Assimp::LogStream
{
public:
    explicit Stream(QStringList& texts) : m_texts(texts) {}

    void write(const char* message) override
    {
        static const QRegularExpression origin("^\\w+, *T\\d+: *");
        static const QRegularExpression ofNoShape("material|texture|mtl|No object detected",
                                                  QRegularExpression::CaseInsensitiveOption);
        constexpr int most = 5;
        QString text = QString::fromUtf8(message).simplified().remove(origin);
        while (text.endsWith('.'))
            text.chop(1);
        if (m_texts.size() < most && !text.contains(ofNoShape) && !m_texts.contains(text))
            m_texts.append(text);
    }

private:
    QStringList& m_texts;
};

AssimpMessages::AssimpMessages()
{
    Assimp::DefaultLogger::create(nullptr, Assimp::Logger::NORMAL, 0);
    // The logger owns the stream.
    Assimp::DefaultLogger::get()->attachStream(new Stream(m_texts),
                                               Assimp::Logger::Err | Assimp::Logger::Warn);
}

AssimpMessages::~AssimpMessages()
{
    Assimp::DefaultLogger::kill();
}
