#include <Models/VelmarError.h>

#include <gtest/gtest.h>

namespace velmar {
namespace {

TEST(VelmarError, SaysWhichFilesAreAllowed) {
    EXPECT_EQ(VelmarError(VelmarError::IncorrectPermissionsOnConfigFile{"/a.plist"}).errorDescription(),
              R"(The configuration file at '/a.plist' has too much permissions and cannot be used.
Allowed cases:
- The 'user' is an 'admin' and is the only one to have the 'write' permission. Ex: '-rw-r--r--'.
- The 'group' is 'admin' or 'wheel' and is the only one to have the 'write' permissions. Ex: '-r--rw-r--'
- The 'user' and group are 'admin' (or group: 'wheel') and the 'other' user has no 'write' permission. Ex: '-rw-rw-r--.)");
}

} // namespace
} // namespace velmar
