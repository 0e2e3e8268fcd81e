// host_services.h: the functions that the host program supplies.

#pragma once

#include <kitegui.h>
