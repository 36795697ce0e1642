// The numbers of the component's resources. Strings keep the numbers of the host contract; dialogs have a
// block of one hundred each.
#pragma once

#define IDS_LANGUAGE 0
#define IDS_ERROR 100
