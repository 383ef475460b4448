#pragma once

#include <QString>

/// What is wrong with a file before it is opened: absent, a folder, not readable, not regular or empty. One
/// sentence that names the file, or nothing; \a wanted says what a folder is not, such as "a mesh file".
QString fileProblem(const QString& path, const QString& wanted);
