// The operations of the query primitives (Type in the frame's head).
#pragma once

#include <cstdint>

// On primAalQuery.
enum AalQueryType : std::uint16_t {
  aalBoardState = 1,
  aalBoardMacAddress = 2,
  aalStats = 3,
  aalSuniStats = 4,
  aalPackageRev = 5,
  aalRlsStatus = 16,
};

// On primVccQuery.
enum VccQueryType : std::uint16_t { vccNRows = 3, vccTable = 4, vccBoardMaxVC = 5 };

// On primLecQuery, primLesQuery, primLecsQuery and primIpQuery.
enum ServiceQueryType : std::uint16_t {
  serviceState = 1,
  serviceStats = 2,
  serviceNRows = 3,
  serviceTable = 4,
  ipPvcNRows = 5,
  ipPvcTable = 6,
};

// On primSigQuery.
enum SigQueryType : std::uint16_t { sigLinkState = 1 };
