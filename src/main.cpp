#include "frame/mainscreen.h"
#include "toolkit/operations.h"
