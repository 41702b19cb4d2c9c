#pragma once

/// Registers the host's page resources: scripts, libraries, style sheets and pictures under "qrc:/", and the
/// catalogues of texts, ":/i18n/zeb4_en.qm" and ":/i18n/zeb4_ja.qm". To be called before a page loads; again does
/// nothing.
void initHostPages();
