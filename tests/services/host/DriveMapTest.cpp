#include "services/host/DriveMap.h"

#include <gtest/gtest.h>

#include "services/Utf8.h"

namespace tagsmith {
namespace {

TEST(DriveMap, EveryHostPathHasOneSystemPathAndComesBack) {
  const DriveMap map;
  const std::vector<std::string> hostPaths = {
      "/", "/home/ann/page.html", "/a b /é.html", "/back\\slash", "/c:colon", "/.hidden",
      // Bytes that are no UTF-8: Latin-1, a cut character, an overlong form, a surrogate.
      "/\xE9t\xE9", "/cut\xE2\x82", "/\xC0\xAF", "/\xED\xA0\x80", "/\xFF\xFE",
      // The stand-ins' own characters: U+F05C, U+F03A, U+F800 and U+F87F; their neighbour U+F880.
      "/\uF05C", "/\uF03A", "/\uF800", "/\uF87F", "/\uF880", "/\uFEFFmark"};
  for (const std::string& hostPath : hostPaths) {
    const std::string path = DriveMap::ToSystemPath(hostPath);
    EXPECT_TRUE(path.starts_with("c:\\")) << path;
    EXPECT_TRUE(IsValidUtf8(path)) << path;
    EXPECT_EQ(path.find_first_of("/:", 2), std::string::npos) << path;
    EXPECT_EQ(map.ToHostPath(path), hostPath);
  }
}

TEST(DriveMap, SystemPathsAreReadWithEitherSeparatorAndLetterCase) {
  const DriveMap map({"/media/ann/STICK"});
  EXPECT_EQ(map.ToHostPath("C:/home\\ann"), "/home/ann");
  EXPECT_EQ(map.ToHostPath("c:"), "/");
  EXPECT_EQ(map.ToHostPath("D:\\a.html"), "/media/ann/STICK/a.html");
  EXPECT_EQ(map.ToHostPath("e:\\a.html"), std::nullopt);
  EXPECT_EQ(map.ToHostPath("\\home"), std::nullopt);
}

std::string Show(const DriveMap& map) {
  std::string shown;
  for (const Drive& drive : map.Drives()) shown += drive.letter + ("[" + drive.label + "] ");
  return shown;
}

TEST(DriveMap, VolumesAreDrivesThatKeepTheirLetterWhileMounted) {
  DriveMap map({"/", "/home", "/mediathek", "/media/ann/USB STICK", "/mnt", "/run/media/ann/CD"});
  EXPECT_EQ(Show(map), "c[root] d[USB STICK] e[mnt] f[CD] ");
  map.Update({"/run/media/ann/CD", "/media/ann/new", "/mnt"});
  EXPECT_EQ(Show(map), "c[root] d[new] e[mnt] f[CD] ");
}

}  // namespace
}  // namespace tagsmith
