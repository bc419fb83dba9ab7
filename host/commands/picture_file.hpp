#pragma once

#include <expected>
#include <span>
#include <string>

#include "host/commands/command.hpp"
#include "messages/requests.hpp"

namespace host {

/// The form that the ending of a file's name asks for, in either case of its letters; a usage Failure that lists the
/// endings of the forms that are offered.
std::expected<messages::PictureFormat, messages::Failure> pictureFormat(
    const std::string& file, std::span<const messages::PictureFormat> offered);

/// What pictures are drawn with: 0.1 to 10 pixels per point; a usage Failure for other numbers.
std::expected<double, messages::Failure> pictureScale(double pixelsPerPoint);

/// Writes the file in one step: on failure there is one line and no half-written file.
Outcome savePicture(const std::string& file, const messages::Picture& picture);

}  // namespace host
