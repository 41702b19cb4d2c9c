#include "HostPages.h"

#include <QtGlobal>

void initHostPages() {
    Q_INIT_RESOURCE(zebsim_pages);
}
