// The network names of Linux mounts, read from a mount table written by the test.
#include "orx/services/posix/mount_table.h"

#include <gtest/gtest.h>

#include <string>

#include "test_support.h"

namespace {

using ORX::internal::MountEntry;

// Written as /proc/self/mounts writes them: a space as \040, a backslash as \134.
constexpr char const* kTable =
    "/dev/sda1 / ext4 rw 0 0\n"
    "server1:/export/projects/ /mnt/projects nfs4 rw 0 0\n"
    "tmpfs /mnt/projects/scratch tmpfs rw 0 0\n"
    "\\134\\134fileserver\\134drawings /mnt/draw\\040ings cifs rw 0 0\n"
    "[fe80::1]:/data /mnt/v6 nfs rw 0 0\n"
    "//old/share /mnt/stacked cifs rw 0 0\n"
    "//new/share /mnt/stacked smb3 rw 0 0\n"
    "oddsource /mnt/odd nfs rw 0 0\n";

class MountTableTest : public testing::Test {
protected:
    MountTableTest() { m_scratch.createFile(L"mounts", kTable); }

    // The network name for a path, "<local>" when its mount is not a network one, or
    // "<none>" when no mount holds it.
    std::string networkName(std::string const& path) const {
        std::string const table = (m_scratch.path() / "mounts").string();
        MountEntry mount;
        if (!ORX::internal::mountHolding(table.c_str(), path, mount)) {
            return "<none>";
        }
        std::string name;
        return ORX::internal::networkNameOfMount(mount, name) ? name : "<local>";
    }

    orx_test::ScratchDirectory m_scratch;
};

}  // namespace

TEST_F(MountTableTest, TheDeepestMountDecidesAndGivesServerAndShare) {
    EXPECT_EQ(networkName("/mnt/projects/hall/plan.dwg"), "//server1/export/projects");
    EXPECT_EQ(networkName("/mnt/projects"), "//server1/export/projects");
    EXPECT_EQ(networkName("/mnt/projects/scratch/x"), "<local>");
    EXPECT_EQ(networkName("/mnt/projectsX/x"), "<local>");  // a sibling, under "/"
    EXPECT_EQ(networkName("/mnt/draw ings/a.dwg"), "//fileserver/drawings");
    EXPECT_EQ(networkName("/mnt/v6/a"), "//[fe80::1]/data");
    EXPECT_EQ(networkName("/mnt/stacked/a"), "//new/share");  // mounted last, on top
    EXPECT_EQ(networkName("/mnt/odd/a"), "<local>");          // no server in the source
    EXPECT_EQ(networkName("relative/path"), "<none>");
    MountEntry mount;
    EXPECT_FALSE(ORX::internal::mountHolding("/nonexistent/mounts", "/", mount));
}
