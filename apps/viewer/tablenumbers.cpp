#include "tablenumbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

bool isPlain(char c)
{
    return (c >= '0' && c <= '9') || c == '.' || c == ',' || c == '+' || c == '-' || c == 'e' || c == 'E';
}

void replaceAll(std::string& text, const char* what, const char* by)
{
    const std::size_t size = std::char_traits<char>::length(what);
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at))
        text.replace(at, size, by);
}

/// Without what only looks: spaces between groups, the typographic minus.
std::string simplified(const std::string& cell)
{
    if (std::all_of(cell.begin(), cell.end(), isPlain))
        return cell;
    std::string text = cell;
    replaceAll(text, "\u00a0", " ");
    replaceAll(text, "\u202f", " ");
    replaceAll(text, "\u2009", " ");
    replaceAll(text, "\u2212", "-");
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos)
        return std::string();
    text = text.substr(first, text.find_last_not_of(" \t") - first + 1);
    if (!std::all_of(text.begin(), text.end(), [](char c) { return isPlain(c) || c == ' ' || c == '\''; }))
        return text;
    // Groups of three, parted by spaces or apostrophes.
    for (std::size_t at = text.find_first_of(" '"); at != std::string::npos;
         at = text.find_first_of(" '", at)) {
        const std::size_t end = std::min(text.find_first_not_of("0123456789", at + 1), text.size());
        if (at == 0 || end - at != 4)
            break;
        text.erase(at, 1);
    }
    return text;
}

char otherSign(char sign)
{
    return sign == '.' ? ',' : '.';
}

/// Removes the sign between groups of three digits. False when it stands elsewhere.
bool removeGroups(std::string& text, char sign)
{
    const std::size_t start = text.find_first_of("0123456789");
    std::size_t at = text.find(sign);
    if (start == std::string::npos || at <= start || at - start > 3)
        return false;
    while (at != std::string::npos) {
        const std::size_t end = std::min(text.find_first_not_of("0123456789", at + 1), text.size());
        if (end - at != 4)
            return false;
        text.erase(at, 1);
        const std::size_t next = text.find(sign, at);
        if (next != std::string::npos && next != at + 3)
            return false;
        at = next;
    }
    return true;
}

} // namespace

TableNumbers::TableNumbers(char delimiter) : m_sign(delimiter == ',' ? '.' : '\0') {}

void TableNumbers::learn(const std::string& cell)
{
    if (m_sign != '\0' || cell.find_first_of(".,") == std::string::npos)
        return;
    const std::string text = simplified(cell);
    if (!std::all_of(text.begin(), text.end(), isPlain))
        return;
    const std::size_t last = text.find_last_of(".,");
    if (last == std::string::npos)
        return;
    const char sign = text[last];
    if (text.find(otherSign(sign)) != std::string::npos) {
        m_sign = sign;
        return;
    }
    std::string whole = text;
    const bool grouped = removeGroups(whole, sign);
    if (text.find(sign) != last) {
        // Several of them; a date has them elsewhere.
        if (grouped)
            m_sign = otherSign(sign);
        return;
    }
    if (!grouped || text[0] == '0' || text.compare(0, 2, "-0") == 0 ||
        text.find_first_of("eE") != std::string::npos)
        m_sign = sign;
    else if (m_undecided)
        m_likely = sign;
    m_undecided = false;
}

CsvNumber::Kind TableNumbers::read(const std::string& cell, double& value) const
{
    static const CsvNumber plain(',');
    std::string text = simplified(cell);
    if (text.size() > 1 && text[0] == '#' && text.find_first_not_of('#') != std::string::npos) {
        value = std::numeric_limits<double>::quiet_NaN();
        return CsvNumber::Missing;
    }
    const char group = otherSign(sign());
    const bool grouped = text.find(group) != std::string::npos;
    if (grouped && std::all_of(text.begin(), text.end(), isPlain) && !removeGroups(text, group))
        return CsvNumber::WrongSign;
    if (sign() == ',')
        std::replace(text.begin(), text.end(), ',', '.');
    CsvNumber number = plain;
    return number.read(text, 0, value);
}
