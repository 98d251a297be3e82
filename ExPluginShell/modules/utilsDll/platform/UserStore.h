#pragma once

#include <QSettings>

#include <memory>

namespace TOLVAN_NAMESPACE::Platform
{

/// The company-wide native store of the current user, which holds the user identifier of all products: the
/// registry branch of the company on Windows, the organisation's own settings file on Unix. The caller owns
/// the result.
std::unique_ptr<QSettings> companyStore();

} // namespace TOLVAN_NAMESPACE::Platform
