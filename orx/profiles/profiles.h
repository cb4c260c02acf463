// Profile outlines by type code, bar axes, helices, meshes and line patterns.
#ifndef ORX_PROFILES_PROFILES_H
#define ORX_PROFILES_PROFILES_H

#endif  // ORX_PROFILES_PROFILES_H
