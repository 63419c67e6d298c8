#include "sunmoon/suntable.h"

namespace tarvane {

void clearsuntable(SunTable& table) {
    table = {};
}

}  // namespace tarvane
