// The shaders of the viewer. Where an instance stands, and how it looks, is read from textures by its
// number: a changed state costs one small upload, a turned model nothing.

/// Instances in a row of a texture; shared by the shaders and by what fills the textures.
export const instancesInRow = 256;
export const texelsOfPlace = 4;  // three rows of a matrix, and the way to go when exploding

const vertexHead = `
precision highp float;
precision highp int;
precision highp sampler2D;
uniform mat4 viewMatrix;
uniform mat4 projectionMatrix;
uniform sampler2D uPlaces;
uniform sampler2D uStates;
uniform float uExplode;
in vec3 position;
in float iId;
out vec3 vWorld;
flat out int vState;

vec4 place(int k) {
  int id = int(iId + 0.5);
  return texelFetch(uPlaces, ivec2((id % ${instancesInRow}) * ${texelsOfPlace} + k, id / ${instancesInRow}), 0);
}

void locate() {
  int id = int(iId + 0.5);
  vec4 p = vec4(position, 1.0);
  vWorld = vec3(dot(place(0), p), dot(place(1), p), dot(place(2), p)) + place(3).xyz * uExplode;
  vState = int(texelFetch(uStates, ivec2(id % ${instancesInRow}, id / ${instancesInRow}), 0).r * 255.0 + 0.5);
  gl_Position = projectionMatrix * viewMatrix * vec4(vWorld, 1.0);
}
`;

const fragmentHead = `
precision highp float;
precision highp int;
uniform vec4 uSection;
uniform vec3 uSelect;
uniform vec3 uHover;
in vec3 vWorld;
flat in int vState;
out vec4 fragColor;

void cut() {
  if (dot(uSection.xyz, vWorld) > uSection.w) discard;
}

vec3 marked(vec3 color, float share) {
  if ((vState & 2) != 0) return mix(color, uHover, share);
  if ((vState & 1) != 0) return mix(color, uSelect, share);
  return color;
}
`;

export const faceVertex = `${vertexHead}
in vec3 normal;
in vec4 color;
out vec3 vNormal;
out vec3 vView;
out vec4 vColor;
flat out int vMirrored;

void main() {
  locate();
  vec3 a = place(0).xyz, b = place(1).xyz, c = place(2).xyz;
  mat3 cofactor = mat3(vec3(b.y * c.z - b.z * c.y, c.y * a.z - c.z * a.y, a.y * b.z - a.z * b.y),
                       vec3(b.z * c.x - b.x * c.z, c.z * a.x - c.x * a.z, a.z * b.x - a.x * b.z),
                       vec3(b.x * c.y - b.y * c.x, c.x * a.y - c.y * a.x, a.x * b.y - a.y * b.x));
  vMirrored = dot(a, cross(b, c)) < 0.0 ? 1 : 0;
  vec3 world = cofactor * normal;
  vNormal = mat3(viewMatrix) * world;
  vec4 seen = viewMatrix * vec4(vWorld, 1.0);
  vView = projectionMatrix[3][3] == 1.0 ? vec3(0.0, 0.0, 1.0) : -seen.xyz;
  vColor = color;
}
`;

export const faceFragment = `${fragmentHead}
in vec3 vNormal;
in vec3 vView;
in vec4 vColor;
flat in int vMirrored;
uniform vec4 uCut;

vec3 lit(vec3 base) {
  vec3 view = normalize(vView);
  vec3 n = normalize(vNormal);
  if (dot(n, view) < 0.0) n = -n;
  vec3 key = normalize(vec3(-0.38, 0.62, 0.70));
  float diffuse = 0.50 + 0.10 * n.y + 0.44 * max(dot(n, key), 0.0);
  float shine = pow(max(dot(n, normalize(key + view)), 0.0), 36.0);
  return base * diffuse + 0.10 * shine;
}

void main() {
  cut();
#ifdef GHOST
  fragColor = vec4(marked(uCut.rgb, 0.5), GHOST);
#else
  bool inside = gl_FrontFacing == (vMirrored == 1);
  if (inside && uSection.w < 1e30) {
    float stripe = mod(gl_FragCoord.x + gl_FragCoord.y, 9.0) < 1.6 ? 0.72 : 1.0;
    fragColor = vec4(marked(mix(uCut.rgb, vColor.rgb, 0.5), 0.45) * stripe, 1.0);
    return;
  }
  fragColor = vec4(lit(marked(vColor.rgb, 0.62)), vColor.a);
#endif
}
`;

export const lineVertex = `${vertexHead}
void main() {
  locate();
}
`;

export const lineFragment = `${fragmentHead}
uniform vec4 uLine;
void main() {
  cut();
  fragColor = vec4(marked(uLine.rgb, 0.85), vState == 0 ? uLine.a : max(uLine.a, 0.8));
}
`;

export const idVertex = `${vertexHead}
flat out int vId;
void main() {
  locate();
  vId = int(iId + 0.5) + 1;
}
`;

export const idFragment = `${fragmentHead}
flat in int vId;
void main() {
  cut();
  fragColor = vec4(float(vId & 255), float((vId >> 8) & 255), float((vId >> 16) & 255), 255.0) / 255.0;
}
`;
