#pragma once

/// The network of a document's camera. A host hands it out as the other topics; nobody asks anything of it.
class DOC_Network {
public:
    virtual ~DOC_Network() = default;
};
