#pragma once

// Has a member without a comment.
class Gap
{
public:
    // This one has a comment.
    void told();

    void untold();
};
