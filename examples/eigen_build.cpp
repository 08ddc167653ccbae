#include "surface.h"
#include <dlfcn.h>
#include <string>

Surface surfaceByEigen_base(const Scan& scan, const Neighbours& neighbours, const std::vector<Vec3>& faces,
                            bool closedForm);
Surface surfaceByEigen_v3(const Scan& scan, const Neighbours& neighbours, const std::vector<Vec3>& faces,
                          bool closedForm);
Surface surfaceByEigen_v4(const Scan& scan, const Neighbours& neighbours, const std::vector<Vec3>& faces,
                          bool closedForm);

// The loader takes the library's wider builds from folders with the processors' names.
EigenBuild eigenLikeLibrary() {
  Dl_info info{};
  const bool known = dladdr(dlsym(RTLD_DEFAULT, "zelmGetLibVersion"), &info) != 0;
  const std::string path = known ? info.dli_fname : "";
#ifdef MESH_EIGEN_v4
  if (path.find("x86-64-v4") != std::string::npos)
    return {"x86-64-v4", surfaceByEigen_v4};
#endif
#ifdef MESH_EIGEN_v3
  if (path.find("x86-64-v3") != std::string::npos)
    return {"x86-64-v3", surfaceByEigen_v3};
#endif
#ifdef MESH_EIGEN_base
  return {"x86-64", surfaceByEigen_base};
#else
  return {};
#endif
}
