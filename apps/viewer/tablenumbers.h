#pragma once

#include "csvnumber.h"

#include <string>

/// Tells the numbers of a pasted table from its texts: with a decimal point or a decimal comma and with signs
/// between groups of three digits, as spreadsheets show them.
///
/// All cells are looked at first: "1,234" alone may be about one or more than a thousand, and another cell
/// such as "0,5" tells which.
class TableNumbers
{
public:
    /// With a comma between the cells the decimal sign is a point.
    explicit TableNumbers(char delimiter);

    /// Learns the decimal sign from a cell.
    void learn(const std::string& cell);
    /// What a cell holds, after all were learnt. The value is set with Number, which may be infinite, and
    /// with Missing, to NaN; error values of spreadsheets are missing, too.
    CsvNumber::Kind read(const std::string& cell, double& value) const;
    /// The decimal sign.
    char sign() const { return m_sign == '\0' ? m_likely : m_sign; }

private:
    char m_sign = '\0';  ///< known for certain
    char m_likely = '.'; ///< as long as it is not
    bool m_undecided = true;
};
