#pragma once

#include "host/design/design_data.h"

#include <string>

namespace host {

/// A design written as an indented text, for tests and samples:
///
///     Gearbox  number=G-100 description="The whole gearbox"
///       Housing  box=10x20x5 material=Aluminium:0.0027
///       Shaft assembly  at=0,0,2.5 grounded
///         Shaft
///         Bolt
///       Bolt
///
/// Each line is a use of a component: its name, then two or more spaces, then what describes it.
/// Two more spaces of indent put it into the line above; the indent of the first line is that of
/// what is directly under the root component. The same name again is the same component: what
/// describes a component, and what is in it, may be given at one of its lines or equally at
/// several.
///
/// Of the component:
/// - `name=` its name, where the line's own word is to tell it from another of that name
/// - `number=` its part number, else the name; `description=`
/// - `attribute=group/name/value`, any number of them
/// - `material=Name:density` in kg/cm3, or `material=none`; else steel of 0.00785 kg/cm3
/// - `box=1x2x3`, a box of these lengths from its origin, in cm
/// - `measures=area:volume` in cm2 and cm3, with the box of `box=` if that is given too
/// - `document=` the other document that it comes from
///
/// Of this use: `at=x,y,z` in cm, and `grounded`. A line `(absent)` is a place at which the host
/// has no occurrence to give. A text in double quotes may hold spaces, and `\"` and `\\` in it
/// stand for a quote and a backslash.
///
/// The design is called "Design". Throws `std::invalid_argument`, naming line and reason, for a
/// text that does not follow this.
DesignData parseOutline(const std::string& text);

}  // namespace host
