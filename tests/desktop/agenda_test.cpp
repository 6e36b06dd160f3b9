#include "desk_test.h"
