#include "relief/ExportGltf.h"

#include <tiny_gltf.h>

#include <cstring>
#include <map>
#include <optional>
#include <vector>

#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Plateforme.h"
#include "relief/TraceRelief.h"

namespace orva {

namespace {

// The bytes of a table of plain values, appended to the buffer; returns the view's index.
template <class T>
int AjouteVue(tinygltf::Model& m, const std::vector<T>& valeurs, int cible) {
  std::vector<unsigned char>& octets = m.buffers[0].data;
  while (octets.size() % 4 != 0) octets.push_back(0);
  tinygltf::BufferView v;
  v.buffer = 0;
  v.byteOffset = octets.size();
  v.byteLength = valeurs.size() * sizeof(T);
  v.target = cible;
  const auto* debut = reinterpret_cast<const unsigned char*>(valeurs.data());
  octets.insert(octets.end(), debut, debut + v.byteLength);
  m.bufferViews.push_back(v);
  return static_cast<int>(m.bufferViews.size() - 1);
}

}  // namespace

bool EcritReliefGltf(const std::string& fichier) {
  const long nbFacettes = static_cast<long>(NbFacettes);
  if (nbFacettes <= 0 || NbSommets <= 0) return false;
  tinygltf::Model m;
  m.asset.version = "2.0";
  m.asset.generator = "ORVA";
  m.buffers.emplace_back();

  // The positions: vertex k of Sommets is position k - 1.
  std::vector<float> positions;
  std::vector<double> mini(3, 0), maxi(3, 0);
  for (long k = 1; k <= NbSommets; ++k) {
    const float p[3] = {Sommets(1, k), Sommets(3, k), -Sommets(2, k)};
    for (int c = 0; c < 3; ++c) {
      if (k == 1 || p[c] < mini[static_cast<std::size_t>(c)]) mini[static_cast<std::size_t>(c)] = p[c];
      if (k == 1 || p[c] > maxi[static_cast<std::size_t>(c)]) maxi[static_cast<std::size_t>(c)] = p[c];
      positions.push_back(p[c]);
    }
  }
  tinygltf::Accessor ap;
  ap.bufferView = AjouteVue(m, positions, TINYGLTF_TARGET_ARRAY_BUFFER);
  ap.componentType = TINYGLTF_COMPONENT_TYPE_FLOAT;
  ap.count = static_cast<std::size_t>(NbSommets);
  ap.type = TINYGLTF_TYPE_VEC3;
  ap.minValues = mini;
  ap.maxValues = maxi;
  m.accessors.push_back(ap);
  const int accesseurPositions = 0;

  // The facets by colour, in table order.
  std::map<int32_t, std::vector<uint32_t>> parCouleur;
  std::vector<int32_t> ordre;
  for (long k = 1; k <= nbFacettes; ++k) {
    const Facette& f = Facettes[k];
    if (!parCouleur.count(f.Couleur)) ordre.push_back(f.Couleur);
    auto& indices = parCouleur[f.Couleur];
    for (int16_t s : {f.Sommet1, f.Sommet2, f.Sommet3}) {
      if (s < 1 || s > NbSommets) Leve(ErrIndice);
      indices.push_back(static_cast<uint32_t>(s - 1));
    }
  }
  tinygltf::Mesh maillage;
  maillage.name = "Relief";
  for (int32_t couleur : ordre) {
    const std::vector<uint32_t>& indices = parCouleur[couleur];
    tinygltf::Accessor ai;
    ai.bufferView = AjouteVue(m, indices, TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER);
    ai.componentType = TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT;
    ai.count = indices.size();
    ai.type = TINYGLTF_TYPE_SCALAR;
    m.accessors.push_back(ai);
    tinygltf::Material mat;
    mat.name = "Couleur " + std::to_string(couleur);
    mat.pbrMetallicRoughness.baseColorFactor = {(couleur & 0xFF) / 255.0, ((couleur >> 8) & 0xFF) / 255.0,
                                                ((couleur >> 16) & 0xFF) / 255.0, 1.0};
    mat.pbrMetallicRoughness.metallicFactor = 0;
    mat.pbrMetallicRoughness.roughnessFactor = 1;
    mat.doubleSided = true;
    m.materials.push_back(mat);
    tinygltf::Primitive p;
    p.attributes["POSITION"] = accesseurPositions;
    p.indices = static_cast<int>(m.accessors.size() - 1);
    p.material = static_cast<int>(m.materials.size() - 1);
    p.mode = TINYGLTF_MODE_TRIANGLES;
    maillage.primitives.push_back(p);
  }
  m.meshes.push_back(maillage);
  tinygltf::Node noeud;
  noeud.mesh = 0;
  noeud.name = "Relief";
  m.nodes.push_back(noeud);
  tinygltf::Scene scene;
  scene.nodes.push_back(0);
  m.scenes.push_back(scene);
  m.defaultScene = 0;
  // Written whole or not at all: a file that cannot be written stays as it was.
  tinygltf::TinyGLTF ecrivain;
  bool ecrit = false;
  try {
    EcritFichierSur(fichier, [&](std::ostream& f) {
      ecrit = ecrivain.WriteGltfSceneToStream(&m, f, true, true);
      if (!ecrit) Leve(ErrChemin);
    });
  } catch (const ErreurExecution&) {
    return false;
  }
  return ecrit;
}

void menExporteGltf() {
  if (NbFacettes <= 0) {
    Message(
        "Aucune facette à exporter : tracez d'abord le relief avec « Prépare le fichier relief 3d » coché "
        "(ou l'image vectorielle).",
        Icone::Exclamation, "Relief glTF");
    return;
  }
  DemandeFichier d;
  d.Titre = "Exporter le relief (glTF)...";
  d.Filtre = "glTF binaire(*.glb)|*.glb|Tous fichiers(*.*)|*.*";
  d.Nom = "relief.glb";
  d.Dossier = RepertoireCourant();
  d.Sauvegarde = true;
  d.ConfirmeEcrasement = true;
  std::optional<std::string> r = Port().DialogueFichier(d);
  if (!r) Leve(ErrAnnulation);
  if (!EcritReliefGltf(*r)) Message("Impossible d'écrire le fichier : " + *r, Icone::Exclamation, "Relief glTF");
}

}  // namespace orva
