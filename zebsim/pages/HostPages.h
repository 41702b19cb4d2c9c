#pragma once

/// Registers the host's page resources: scripts, libraries, style sheets and pictures under "qrc:/", and the
/// catalogues of texts, as ":/i18n/zeb4_en.qm". To be called before a page loads; again does nothing.
void initHostPages();
