#pragma once

#include <functional>
#include <string>

namespace tagsmith::test {

/// Runs `body`, with its expectations, in a process of its own, which is ended when it takes half a
/// minute: for what changes a process for good, and for what might hang. A fault in it is one of
/// the test. False when the system does not allow what it does.
bool InProcess(const std::function<void()>& body);

/// For such a body. Each ends the process when the system does not allow it.
void BecomeOrdinaryUser();
void MountSmallDisk(const std::string& folder, const std::string& size);

}  // namespace tagsmith::test
