#pragma once

#include <vector>

namespace Test {

// While it lives, every thread of a process that is root's has only the rights that any other user
// has, so that permissions hold for it as well; a process of another user stays as it is. What such
// a process may write to, as a temporary folder, is made after the object.
class WithoutRights
{
public:
    WithoutRights();
    WithoutRights(const WithoutRights &) = delete;
    WithoutRights &operator=(const WithoutRights &) = delete;
    ~WithoutRights();

    // Whether they hold now; not for a root that this machine does not let become another user, and
    // not on Windows, whose lists of rights QFile does not change.
    static bool PermissionsHold();

    // Whether a file that QFile makes read-only is read-only now; on Windows it is for everybody.
    static bool ReadOnlyFilesHold();

private:
    bool m_gaveUp = false;
    std::vector<unsigned> m_groups;
};

} // namespace Test
