#include "WithoutRights.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <grp.h>
#include <unistd.h>

#include <type_traits>
#endif

namespace Test {

#ifdef Q_OS_UNIX

namespace {

static_assert(std::is_same_v<gid_t, unsigned>);

constexpr uid_t root = 0;
constexpr uid_t nobody = 65534;

std::vector<gid_t> Groups()
{
    std::vector<gid_t> groups(static_cast<std::size_t>(getgroups(0, nullptr)));
    getgroups(static_cast<int>(groups.size()), groups.data());
    return groups;
}

// The saved ids stay root's, which permissions do not look at: they are the way back.
bool GiveUpRights()
{
    return setgroups(0, nullptr) == 0 && setresgid(nobody, nobody, root) == 0
            && setresuid(nobody, nobody, root) == 0;
}

bool TakeRightsBack(const std::vector<gid_t> &groups)
{
    return setresuid(root, root, root) == 0 && setresgid(root, root, root) == 0
            && setgroups(groups.size(), groups.data()) == 0;
}

} // namespace

WithoutRights::WithoutRights()
{
    if (geteuid() != root)
        return;
    m_groups = Groups();
    m_gaveUp = GiveUpRights();
    if (!m_gaveUp)
        TakeRightsBack(m_groups);
}

WithoutRights::~WithoutRights()
{
    if (m_gaveUp && !TakeRightsBack(m_groups))
        qFatal("cannot take back the rights of root");
}

bool WithoutRights::PermissionsHold()
{
    return geteuid() != root;
}

bool WithoutRights::ReadOnlyFilesHold()
{
    return PermissionsHold();
}

#else

WithoutRights::WithoutRights() = default;
WithoutRights::~WithoutRights() = default;

bool WithoutRights::PermissionsHold()
{
    return false;
}

bool WithoutRights::ReadOnlyFilesHold()
{
    return true;
}

#endif

} // namespace Test
