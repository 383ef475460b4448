#include "csvnumber.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool isMissing(std::string text)
{
    static const std::array<const char*, 6> marks = {"", "-", "na", "n/a", "#n/a", "nan"};
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return std::find(marks.begin(), marks.end(), text) != marks.end();
}

std::string trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// A number with a decimal point that takes up the whole text.
bool parse(const std::string& text, double& value)
{
    const char* first = text.data();
    const char* const last = first + text.size();
    if (last - first > 1 && *first == '+' && first[1] != '-')
        ++first;
    const std::from_chars_result result = std::from_chars(first, last, value);
    if (result.ptr != last || (result.ec != std::errc() && result.ec != std::errc::result_out_of_range))
        return false;
    if (result.ec == std::errc::result_out_of_range) {
        const bool tiny = text.find("e-") != std::string::npos || text.find("E-") != std::string::npos;
        const double beyond = tiny ? 0.0 : std::numeric_limits<double>::infinity();
        value = *first == '-' ? -beyond : beyond;
    }
    return true;
}

} // namespace

CsvNumber::CsvNumber(char delimiter) : m_sign(delimiter == ',' ? '.' : '\0') {}

CsvNumber::Kind CsvNumber::read(const std::string& cell, int line, double& value)
{
    std::string text = trimmed(cell);
    if (isMissing(text)) {
        value = std::numeric_limits<double>::quiet_NaN();
        return Missing;
    }
    const std::size_t position = text.find_first_of(".,");
    if (position == std::string::npos) {
        if (!parse(text, value))
            return Text;
        return std::isnan(value) ? Missing : Number;
    }
    const char sign = text[position];
    text[position] = '.';
    double found = 0.0;
    if (text.find(',') != std::string::npos || !parse(text, found))
        return Text;
    if (m_sign == '\0') {
        m_sign = sign;
        m_signLine = line;
    }
    if (sign != m_sign)
        return WrongSign;
    value = found;
    return Number;
}
