#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// IGES files for tests.
namespace drafts {

/// An entity's parameters, which begin with its type; the form is that of its directory entry.
struct IgesEntity {
    int type = 0;
    int form = 0;
    std::string parameters;
};

/// One record of 80 columns.
std::string igesRecord(const std::string& text, char section, std::size_t number);

/// An IGES file whose unit has this flag and name.
std::string iges(const std::vector<IgesEntity>& entities, const std::string& unit = "2,2HMM");

/// A rectangle of 10 x 20 that two lines span.
inline const std::vector<IgesEntity> kRectangle = {{110, 0, "110,0.,0.,0.,10.,0.,0.;"},
                                                   {110, 0, "110,0.,20.,0.,10.,20.,0.;"},
                                                   {118, 1, "118,1,3,0,1;"}};

}  // namespace drafts
