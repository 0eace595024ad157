// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

/// What an export says about itself, to whoever finds it.
inline constexpr std::string_view ExportReadme = R"(This folder holds all that Kestrill keeps of a household.

  Inventory.csv, Bank_Info.csv and the other .csv files
                         each table: UTF-8, RFC 4180, a line of headings first
  kestrill.json          all tables in one file, for other programs
  kestrill.schema.json   what is in that file, as a JSON schema
  Asset Report.pdf, Cover Sheet.pdf
                         to read and to print

The files are not encrypted. Who can read them knows what you own, and your account numbers.

Every cell of the .csv files stands as it was entered, bit for bit, so that another program can read it back. A cell that
begins with =, +, - or @ is therefore taken for a formula by a spreadsheet program that opens the file. Where others have
entered what you open, import the file with its columns set to text instead. The table that the preview of the asset
report saves is made for a spreadsheet: there an apostrophe stands before such cells.
)";
