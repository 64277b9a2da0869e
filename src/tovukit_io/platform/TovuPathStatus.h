#pragma once

/// What a network path monitor reports: whether the device can reach a network now.
enum class TovuPathStatus {
    satisfied, ///< usable: an interface is up with a route out
    unsatisfied, ///< no usable path
    requiresConnection, ///< usable once a connection is brought up (a dial-up or VPN on demand)
};
