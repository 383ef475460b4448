#pragma once

#include <QString>

#include <string>

/// The text of a cell; what is no UTF-8 is the West European encoding of older programs.
QString cellText(const std::string& cell);

/// A cell as a message quotes it: shortened, between quotation marks.
QString quotedCell(const std::string& cell);

/// A column, from 0, as a message names it: its number from 1 and its letters in a spreadsheet, "28 (AB)".
QString columnText(int column);

/// Whether nothing but spaces and tabs stands in a cell.
bool isBlankCell(const std::string& cell);
