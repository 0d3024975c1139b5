#include "core/error_catalogue.h"

namespace mc {

std::string ErrorText(int n, int presentYear) {
  if (n < 1 || n > kErrorCatalogueSize) return "Unknown internal error";
  if (n == 249)
    return "Year values must not be greater than " + std::to_string(presentYear + 1) + ".";
  if (n == 250) return "Year values must not be less than " + std::to_string(presentYear) + ".";
  return std::string(kErrorCatalogue[n]);
}

}  // namespace mc
