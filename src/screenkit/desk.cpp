#include "screenkit/desk.h"
