#include "shell/contract/screen.h"
