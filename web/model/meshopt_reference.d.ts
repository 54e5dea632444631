declare module 'meshopt-reference' {
  export const MeshoptDecoder: {
    decodeGltfBuffer(target: Uint8Array, count: number, size: number, source: Uint8Array, mode: string,
                     filter?: string): void;
  };
}
