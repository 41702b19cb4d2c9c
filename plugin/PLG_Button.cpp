#include "PLG_Button.h"

PLG_Button::PLG_Button() {
    m_category = 2;
}
