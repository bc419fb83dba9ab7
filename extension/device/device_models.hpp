#pragma once

#include <array>
#include <string_view>

namespace mirune {

/// A model as it is sold, and what its kernels call it: one identifier for each variant by radio, region or year.
struct DeviceModel {
  std::string_view name = {};
  std::array<std::string_view, 4> identifiers = {};  ///< unused ones are empty
};

/// The models that have a name here, up to the iPhone 14 family and the tenth iPad. Identifiers are the vendor's
/// published ones.
inline constexpr auto deviceModels = std::to_array<DeviceModel>({
    {"iPod touch (5th generation)", {"iPod5,1"}},
    {"iPod touch (6th generation)", {"iPod7,1"}},
    {"iPod touch (7th generation)", {"iPod9,1"}},

    {"iPhone 4", {"iPhone3,1", "iPhone3,2", "iPhone3,3"}},
    {"iPhone 4s", {"iPhone4,1"}},
    {"iPhone 5", {"iPhone5,1", "iPhone5,2"}},
    {"iPhone 5c", {"iPhone5,3", "iPhone5,4"}},
    {"iPhone 5s", {"iPhone6,1", "iPhone6,2"}},
    {"iPhone 6", {"iPhone7,2"}},
    {"iPhone 6 Plus", {"iPhone7,1"}},
    {"iPhone 6s", {"iPhone8,1"}},
    {"iPhone 6s Plus", {"iPhone8,2"}},
    {"iPhone SE", {"iPhone8,4"}},
    {"iPhone 7", {"iPhone9,1", "iPhone9,3"}},
    {"iPhone 7 Plus", {"iPhone9,2", "iPhone9,4"}},
    {"iPhone 8", {"iPhone10,1", "iPhone10,4"}},
    {"iPhone 8 Plus", {"iPhone10,2", "iPhone10,5"}},
    {"iPhone X", {"iPhone10,3", "iPhone10,6"}},
    {"iPhone XS", {"iPhone11,2"}},
    {"iPhone XS Max", {"iPhone11,4", "iPhone11,6"}},
    {"iPhone XR", {"iPhone11,8"}},
    {"iPhone 11", {"iPhone12,1"}},
    {"iPhone 11 Pro", {"iPhone12,3"}},
    {"iPhone 11 Pro Max", {"iPhone12,5"}},
    {"iPhone SE (2nd generation)", {"iPhone12,8"}},
    {"iPhone 12 mini", {"iPhone13,1"}},
    {"iPhone 12", {"iPhone13,2"}},
    {"iPhone 12 Pro", {"iPhone13,3"}},
    {"iPhone 12 Pro Max", {"iPhone13,4"}},
    {"iPhone 13 Pro", {"iPhone14,2"}},
    {"iPhone 13 Pro Max", {"iPhone14,3"}},
    {"iPhone 13 mini", {"iPhone14,4"}},
    {"iPhone 13", {"iPhone14,5"}},
    {"iPhone SE (3rd generation)", {"iPhone14,6"}},
    {"iPhone 14", {"iPhone14,7"}},
    {"iPhone 14 Plus", {"iPhone14,8"}},
    {"iPhone 14 Pro", {"iPhone15,2"}},
    {"iPhone 14 Pro Max", {"iPhone15,3"}},

    {"iPad 2", {"iPad2,1", "iPad2,2", "iPad2,3", "iPad2,4"}},
    {"iPad (3rd generation)", {"iPad3,1", "iPad3,2", "iPad3,3"}},
    {"iPad (4th generation)", {"iPad3,4", "iPad3,5", "iPad3,6"}},
    {"iPad (5th generation)", {"iPad6,11", "iPad6,12"}},
    {"iPad (6th generation)", {"iPad7,5", "iPad7,6"}},
    {"iPad (7th generation)", {"iPad7,11", "iPad7,12"}},
    {"iPad (8th generation)", {"iPad11,6", "iPad11,7"}},
    {"iPad (9th generation)", {"iPad12,1", "iPad12,2"}},
    {"iPad (10th generation)", {"iPad13,18", "iPad13,19"}},
    {"iPad Air", {"iPad4,1", "iPad4,2", "iPad4,3"}},
    {"iPad Air 2", {"iPad5,3", "iPad5,4"}},
    {"iPad Air (3rd generation)", {"iPad11,3", "iPad11,4"}},
    {"iPad Air (4th generation)", {"iPad13,1", "iPad13,2"}},
    {"iPad Air (5th generation)", {"iPad13,16", "iPad13,17"}},
    {"iPad mini", {"iPad2,5", "iPad2,6", "iPad2,7"}},
    {"iPad mini 2", {"iPad4,4", "iPad4,5", "iPad4,6"}},
    {"iPad mini 3", {"iPad4,7", "iPad4,8", "iPad4,9"}},
    {"iPad mini 4", {"iPad5,1", "iPad5,2"}},
    {"iPad mini (5th generation)", {"iPad11,1", "iPad11,2"}},
    {"iPad mini (6th generation)", {"iPad14,1", "iPad14,2"}},
    {"iPad Pro (9.7-inch)", {"iPad6,3", "iPad6,4"}},
    {"iPad Pro (10.5-inch)", {"iPad7,3", "iPad7,4"}},
    {"iPad Pro (11-inch) (1st generation)", {"iPad8,1", "iPad8,2", "iPad8,3", "iPad8,4"}},
    {"iPad Pro (11-inch) (2nd generation)", {"iPad8,9", "iPad8,10"}},
    {"iPad Pro (11-inch) (3rd generation)", {"iPad13,4", "iPad13,5", "iPad13,6", "iPad13,7"}},
    {"iPad Pro (11-inch) (4th generation)", {"iPad14,3", "iPad14,4"}},
    {"iPad Pro (12.9-inch) (1st generation)", {"iPad6,7", "iPad6,8"}},
    {"iPad Pro (12.9-inch) (2nd generation)", {"iPad7,1", "iPad7,2"}},
    {"iPad Pro (12.9-inch) (3rd generation)", {"iPad8,5", "iPad8,6", "iPad8,7", "iPad8,8"}},
    {"iPad Pro (12.9-inch) (4th generation)", {"iPad8,11", "iPad8,12"}},
    {"iPad Pro (12.9-inch) (5th generation)", {"iPad13,8", "iPad13,9", "iPad13,10", "iPad13,11"}},
    {"iPad Pro (12.9-inch) (6th generation)", {"iPad14,5", "iPad14,6"}},

    {"Apple TV", {"AppleTV5,3"}},
    {"Apple TV 4K", {"AppleTV6,2"}},

    {"HomePod", {"AudioAccessory1,1"}},
    {"HomePod mini", {"AudioAccessory5,1"}},
});

}  // namespace mirune
