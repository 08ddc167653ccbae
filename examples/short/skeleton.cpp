// The poses of a crowd: each bone's matrix relative to its parent becomes one relative to the world. All characters
// have the same skeleton, so that each bone is one call for the whole crowd.
#include <cstdio>
#include <glm/glm.hpp>
#include <glm/gtc/matrix_transform.hpp>
#include <glm/gtc/type_ptr.hpp>
#include <vector>
#include <zelm.h>

namespace {

constexpr int bones = 20, characters = 300;
struct Pose {
  glm::mat4 bone[bones];
};

// A spine from which limbs branch off; a parent comes before its children, and bone 0 has none.
constexpr int parentOf(int bone) {
  return bone % 4 == 1 && bone > 1 ? bone - 4 : bone - 1;
}

// glm keeps columns together. Read as rows, its matrices are transposed, and (A B)' = B' A': the sources are exchanged.
ZelStatus toWorld(const std::vector<Pose>& local, std::vector<Pose>& world) {
  constexpr int32_t next = sizeof(Pose), column = sizeof(glm::vec4), element = sizeof(float);
  for (int bone = 0; bone < bones; ++bone) {
    const float* relative = glm::value_ptr(local[0].bone[bone]);
    float* result = glm::value_ptr(world[0].bone[bone]);
    ZelStatus status;
    if (bone == 0)
      status = zelmCopy_ma_32f_SS(relative, next, column, element, result, next, column, element, 4, 4, characters);
    else // world[k].bone = world[k].parent * local[k].bone for all k
      status = zelmMul_mama_32f(relative, next, column, element, 4, 4, glm::value_ptr(world[0].bone[parentOf(bone)]),
                                next, column, element, 4, 4, result, next, column, element, characters);
    if (status != zelStatusOk)
      return status;
  }
  return zelStatusOk;
}

float largestDifference(const glm::mat4& a, const glm::mat4& b) {
  float largest = 0;
  for (int i = 0; i < 16; ++i)
    largest = glm::max(largest, glm::abs(glm::value_ptr(a)[i] - glm::value_ptr(b)[i]));
  return largest;
}

} // namespace

int main() {
  std::vector<Pose> local(characters), world(characters);
  for (int k = 0; k < characters; ++k)
    for (int bone = 0; bone < bones; ++bone) {
      const glm::mat4 moved = glm::translate(glm::mat4(1), glm::vec3(bone ? 0 : k, 1, 0));
      local[size_t(k)].bone[bone] = glm::rotate(moved, 0.1f * float((k + bone) % 9), glm::vec3(0, bone % 2, 1));
    }

  const ZelStatus status = toWorld(local, world);

  float difference = 0;
  for (size_t k = 0; k < characters; ++k)
    for (int bone = 1; bone < bones; ++bone)
      difference = glm::max(
          difference, largestDifference(world[k].bone[bone], world[k].bone[parentOf(bone)] * local[k].bone[bone]));
  const glm::vec3 hand(world[characters - 1].bone[bones - 1][3]);
  std::printf("%d poses of %d bones, status %d; the last hand is at %g %g %g; largest difference from glm: %g\n",
              characters, bones, status, double(hand.x), double(hand.y), double(hand.z), double(difference));
  return status != zelStatusOk || !(difference < 1e-3f);
}
