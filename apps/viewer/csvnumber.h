#pragma once

#include <QChar>

#include <string>

/// Tells the numbers of a CSV file from its texts, whatever the locale.
///
/// The first number with a decimal sign fixes the sign for the file, so that "1.234" and "1,234" never mean
/// two things in one file.
class CsvNumber
{
public:
    /// WrongSign: a number with the other decimal sign.
    enum Kind { Number, Missing, WrongSign, Text };

    /// With a comma between the cells no comma can stand in a number.
    explicit CsvNumber(char delimiter);

    /// What a cell holds. The value is set with Number, which may be infinite, and with Missing, to NaN.
    Kind read(const std::string& cell, int line, double& value);

    /// The decimal sign; null as long as no number had one.
    char sign() const { return m_sign; }
    /// The line of the number that fixed the sign; 0 when the delimiter did.
    int signLine() const { return m_signLine; }

private:
    char m_sign = '\0';
    int m_signLine = 0;
};
