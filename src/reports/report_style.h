// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/layout.h"

/// What the three reports have in common, and the lengths that none of them prescribes.
namespace style {

inline constexpr report::Type Name{16, true}; ///< the program's name at the head
inline constexpr report::Type Heading{13, true};
inline constexpr report::Type List{9}; ///< the asset report, which has much on a page
inline constexpr report::Type Body{11}; ///< the cover sheet
inline constexpr report::Type Total{13};
inline constexpr report::Type Form{10}; ///< the form to fill in

inline constexpr double NameHeight = 420;
inline constexpr double HeadingHeight = 375;
inline constexpr double LineHeight = 300;

inline constexpr double PageMargin = 720; ///< above and below
inline constexpr double FormMargin = 360; ///< the form has its own margins inside

/// The program's logo.
report::Picture logo(const report::Place& place);

/// A heading, centred in its place.
report::Label heading(const char* text, double left, double top, double width);
report::Label programName(double left, double top, double width);

/// A caption, which ends where its place ends.
report::Label caption(const char* text, const report::Place& place, report::Type type);

} // namespace style
