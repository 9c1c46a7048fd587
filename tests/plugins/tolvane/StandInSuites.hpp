#pragma once

namespace zm::test {

// Until the host serves the units entries of "ZM User Suite", the profile name of "Override
// ZM Color Conversion Suite" and the highlight flags of "KRX DocumentTextResources Suite",
// these point the plug-in's suite pointers at tables that answer them from the host's
// current document as the host is meant to (units: the names "Points" ... "Picas"; values in
// the ruler unit with at most three decimals, trailing zeros dropped, a blank and the
// abbreviation). Each pointer whose host table already has the entries is left alone, so the
// tests run against the host as soon as it has them.
void InstallStandInSuites();

}  // namespace zm::test
