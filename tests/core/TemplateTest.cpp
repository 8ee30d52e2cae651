#include <gtest/gtest.h>

#include "core/Template.h"

namespace tagsmith {
namespace {

TEST(Template, FillsItsPlacesAndEndsItsLines) {
  EXPECT_EQ(FillTemplate("a{x}\n{y} {z} {x{x}}\n", {{"x", "{y}\n"}, {"y", ""}}),
            "a{y}\n\r\n {z} {x{y}\n}\r\n");
  EXPECT_EQ(FillTemplate("{x", {{"x", "1"}}), "{x");
}

}  // namespace
}  // namespace tagsmith
