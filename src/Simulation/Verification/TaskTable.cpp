#include "Simulation/Verification/TaskTable.hpp"

#include <iterator>

namespace Merivane::Simulation {

namespace {

struct Section {
    std::int32_t number;
    const char* name;
};

struct Activity {
    const char* id;
    std::int32_t section;
    std::int32_t em; // lux
    std::int32_t ugrLimit;
    std::int32_t ra;
    const char* activity;
    const char* note;
};

// clang-format off
constexpr Section Sections[] = {
    {1, "Áreas gerais da edificação"},
    {2, "Edificações na agricultura"},
    {3, "Padarias"},
    {4, "Cimento, concreto e indústria de tijolos"},
    {5, "Indústria de cerâmica e vidro"},
    {6, "Indústria de borracha, indústria plástica e química"},
    {7, "Indústria elétrica"},
    {8, "Indústria de alimentos"},
    {9, "Fundições e plantas de fundição de metal"},
    {10, "Cabeleireiros"},
    {11, "Fabricação de joias"},
    {12, "Lavanderias e limpeza a seco"},
    {13, "Indústria de couro"},
    {14, "Trabalho e processamento em metal"},
    {15, "Indústria de papel"},
    {16, "Subestações"},
    {17, "Gráficas"},
    {18, "Trabalhos em ferro e aço"},
    {19, "Indústria têxtil"},
    {20, "Construção de veículos"},
    {21, "Marcenaria e indústria de móveis"},
    {22, "Escritórios"},
    {23, "Varejo"},
    {24, "Restaurantes e hotéis"},
    {25, "Locais de entretenimento"},
    {26, "Bibliotecas"},
    {27, "Estacionamentos públicos (internos)"},
    {28, "Construções educacionais"},
    {29, "Locais de assistência médica"},
    {30, "Aeroportos"},
    {31, "Locais para celebrações e cultos religiosos (igrejas, mosteiros, sinagogas, templos etc.)"},
};

// Values of ISO/CIE 8995-1:2002, texts of ABNT NBR ISO/CIE 8995-1:2013. The uniformity is 0.7
// throughout.
constexpr Activity Activities[] = {
    {"s1.1", 1, 100, 22, 60, "Saguão de entrada", ""},
    {"s1.2", 1, 200, 22, 80, "Sala de espera", ""},
    {"s1.3", 1, 100, 28, 40, "Áreas de circulação e corredores", "Nas entradas e saídas, estabelecer uma zona de transição, a fim de evitar mudanças bruscas."},
    {"s1.4", 1, 150, 25, 40, "Escadas, escadas rolantes e esteiras rolantes", ""},
    {"s1.5", 1, 150, 25, 40, "Rampas de carregamento", ""},
    {"s1.6", 1, 200, 22, 80, "Refeitório/Cantinas", ""},
    {"s1.7", 1, 100, 22, 80, "Salas de descanso", ""},
    {"s1.8", 1, 300, 22, 80, "Salas para exercícios físicos", ""},
    {"s1.9", 1, 200, 25, 80, "Vestiários, banheiros, toaletes", ""},
    {"s1.10", 1, 500, 19, 80, "Enfermaria", ""},
    {"s1.11", 1, 500, 16, 90, "Salas para atendimento médico", "Tcp no mínimo 4 000 K."},
    {"s1.12", 1, 200, 25, 60, "Estufas, sala dos disjuntores", ""},
    {"s1.13", 1, 500, 19, 80, "Correios, quadros de distribuição", ""},
    {"s1.14", 1, 100, 25, 60, "Depósito, estoques, câmara fria", "200 lux, se forem continuamente ocupados."},
    {"s1.15", 1, 300, 25, 60, "Expedição", ""},
    {"s1.16", 1, 150, 22, 60, "Estação de controle", "200 lux se forem continuamente ocupadas."},
    {"s2.1", 2, 200, 25, 80, "Carregamento e operação de mercadorias, equipamentos de manuseio e máquinas", ""},
    {"s2.2", 2, 50, 28, 40, "Estábulo", ""},
    {"s2.3", 2, 200, 25, 80, "Cercado para animais doentes, baias para parto de animais", ""},
    {"s2.4", 2, 200, 25, 80, "Preparação dos alimentos, leiteira, lavagem de utensílios", ""},
    {"s3.1", 3, 300, 22, 80, "Preparação e fornada", ""},
    {"s3.2", 3, 500, 22, 80, "Acabamento, decoração", ""},
    {"s4.1", 4, 50, 28, 20, "Secagem", "As cores para segurança devem ser reconhecíveis."},
    {"s4.2", 4, 200, 28, 40, "Preparação dos materiais, trabalhos nos fornos e misturadores", ""},
    {"s4.3", 4, 300, 25, 80, "Trabalhos em máquinas em geral", "Para montagem alta: ver também 4.6.2."},
    {"s4.4", 4, 300, 25, 80, "Formas brutas", "Para montagem alta: ver também 4.6.2."},
    {"s5.1", 5, 50, 28, 20, "Secagem", ""},
    {"s5.2", 5, 300, 25, 80, "Preparação, trabalhos em máquinas em geral", "Para montagem alta: ver também 4.6.2."},
    {"s5.3", 5, 300, 25, 80, "Esmaltagem, laminação, compressão, moldagem de peças simples, vitrificação, sopragem do vidro", "Para montagem alta: ver também 4.6.2."},
    {"s5.4", 5, 750, 19, 80, "Polimento, moagem, gravação, polimento do vidro, moldagem de peças de precisão, fabricação de instrumentos de vidro", "Para montagem alta: ver também 4.6.2."},
    {"s5.5", 5, 500, 19, 80, "Trabalho decorativo", ""},
    {"s5.6", 5, 750, 16, 80, "Polimento de vidro ótico, polimento manual e gravação de cristais, trabalhos em mercadorias comuns", ""},
    {"s5.7", 5, 1000, 16, 90, "Trabalho de precisão, por exemplo: polimento decorativo, pintura à mão", "Tcp no mínimo 4 000 K."},
    {"s5.8", 5, 1500, 16, 90, "Fabricação de pedras preciosas sintéticas", "Tcp no mínimo 4 000 K."},
    {"s6.1", 6, 50, 0, 20, "Instalações de processamento operadas remotamente", "As cores para segurança devem ser reconhecíveis."},
    {"s6.2", 6, 150, 28, 40, "Instalações de processamento com intervenção manual limitada", ""},
    {"s6.3", 6, 300, 25, 80, "Instalações de processamento com trabalho manual constante", ""},
    {"s6.4", 6, 500, 19, 80, "Metrologias, laboratórios", ""},
    {"s6.5", 6, 500, 22, 80, "Produção farmacêutica", ""},
    {"s6.6", 6, 500, 22, 80, "Produção de pneus", ""},
    {"s6.7", 6, 1000, 16, 90, "Inspeção de cor", "Tcp no mínimo 6 500 K."},
    {"s6.8", 6, 750, 19, 80, "Corte, acabamento, inspeção", ""},
    {"s7.1", 7, 300, 25, 80, "Fabricação de cabos e fios", "Para montagem alta: ver também 4.6.2."},
    {"s7.2", 7, 300, 25, 80, "Bobinagem: bobinas grandes", "Para montagem alta: ver também 4.6.2."},
    {"s7.3", 7, 500, 22, 80, "Bobinagem: bobinas médias", "Para montagem alta: ver também 4.6.2."},
    {"s7.4", 7, 750, 19, 80, "Bobinagem: bobinas pequenas", "Para montagem alta: ver também 4.6.2."},
    {"s7.5", 7, 300, 25, 80, "Impregnação das bobinas", "Para montagem alta: ver também 4.6.2."},
    {"s7.6", 7, 300, 25, 80, "Galvanoplastia", "Para montagem alta: ver também 4.6.2."},
    {"s7.7", 7, 300, 25, 80, "Montagem: bruta, por exemplo, grandes transformadores", "Para montagem alta: ver também 4.6.2."},
    {"s7.8", 7, 500, 22, 80, "Montagem: média, por exemplo, quadros de distribuição", ""},
    {"s7.9", 7, 750, 19, 80, "Montagem: fina, por exemplo, telefone", ""},
    {"s7.10", 7, 1000, 16, 80, "Montagem: de precisão, por exemplo, equipamentos de medição", ""},
    {"s7.11", 7, 1500, 16, 80, "Oficinas eletrônicas, ensaios, ajustes", ""},
    {"s8.1", 8, 200, 25, 80, "Locais de trabalho e zonas em cervejarias, maltagem, lavagem, enchimento de barris, limpeza, peneiração, descascamento, alimentos em conserva, fábrica de chocolate, locais de trabalho e zonas em fábricas de açúcar, para secagem e fermentação de tabaco cru, câmara de fermentação", ""},
    {"s8.2", 8, 300, 25, 80, "Triagem e lavagem de produtos, moagem, mistura, embalagem", ""},
    {"s8.3", 8, 500, 25, 80, "Locais de trabalho e zonas para abatedouros, açougues, leiteiras, área de filtragem, em refinarias de açúcar", ""},
    {"s8.4", 8, 300, 25, 80, "Corte e triagem de frutas e vegetais", ""},
    {"s8.5", 8, 500, 22, 80, "Fabricação de alimentos finos, cozinha", ""},
    {"s8.6", 8, 500, 22, 80, "Fabricação de charutos e cigarros", ""},
    {"s8.7", 8, 500, 22, 80, "Inspeção de vidros e garrafas, controle do produto, ornamentação, triagem na decoração", ""},
    {"s8.8", 8, 500, 19, 80, "Laboratórios", ""},
    {"s8.9", 8, 1000, 16, 90, "Inspeção de cor", "Tcp no mínimo 4 000 K."},
    {"s9.1", 9, 50, 28, 20, "Túneis do tamanho de um homem sob o piso, porão etc.", "As cores para segurança devem ser reconhecíveis."},
    {"s9.2", 9, 100, 25, 40, "Plataformas", ""},
    {"s9.3", 9, 200, 25, 80, "Preparação da areia", "Para montagem alta: ver também 4.6.2."},
    {"s9.4", 9, 200, 25, 80, "Vestiários", "Para montagem alta: ver também 4.6.2."},
    {"s9.5", 9, 200, 25, 80, "Trabalhos nos cadinhos e misturadores", "Para montagem alta: ver também 4.6.2."},
    {"s9.6", 9, 200, 25, 80, "Baia da fundição", "Para montagem alta: ver também 4.6.2."},
    {"s9.7", 9, 200, 25, 80, "Área dos vibradores", "Para montagem alta: ver também 4.6.2."},
    {"s9.8", 9, 200, 25, 80, "Máquinas de moldagem", "Para montagem alta: ver também 4.6.2."},
    {"s9.9", 9, 300, 25, 80, "Moldagem central e auxiliar", "Para montagem alta: ver também 4.6.2."},
    {"s9.10", 9, 300, 25, 80, "Fundição", "Para montagem alta: ver também 4.6.2."},
    {"s9.11", 9, 500, 22, 80, "Construção de modelos", "Para montagem alta: ver também 4.6.2."},
    {"s10.1", 10, 500, 19, 90, "Cabeleireiro", ""},
    {"s11.1", 11, 1500, 16, 90, "Trabalho com pedras preciosas", "Tcp no mínimo 4 000 K."},
    {"s11.2", 11, 1000, 16, 90, "Fabricação de joias", ""},
    {"s11.3", 11, 1500, 16, 80, "Relojoaria (manual)", ""},
    {"s11.4", 11, 500, 19, 80, "Relojoaria (automática)", ""},
    {"s12.1", 12, 300, 25, 80, "Entrada de mercadorias, marcação e distribuição", ""},
    {"s12.2", 12, 300, 25, 80, "Lavagem e limpeza a seco", ""},
    {"s12.3", 12, 300, 25, 80, "Passar roupas", ""},
    {"s12.4", 12, 750, 19, 80, "Inspeção e reparos", ""},
    {"s13.1", 13, 200, 25, 40, "Trabalho em cubas, barris, tanques", ""},
    {"s13.2", 13, 300, 25, 80, "Descarnar, aparar, esfregar, tombar peles", ""},
    {"s13.3", 13, 500, 22, 80, "Trabalho em selas, fábrica de sapatos, costura, polimento, modelagem, corte, puncionamento", ""},
    {"s13.4", 13, 500, 22, 90, "Triagem", "Tcp no mínimo 4 000 K."},
    {"s13.5", 13, 500, 22, 80, "Tingimento de couro (máquina)", ""},
    {"s13.6", 13, 1000, 19, 80, "Controle de qualidade", ""},
    {"s13.7", 13, 1000, 16, 90, "Inspeção de cor", "Tcp no mínimo 4 000 K."},
    {"s13.8", 13, 500, 22, 80, "Fabricação de sapato", ""},
    {"s13.9", 13, 500, 22, 80, "Fabricação de luva", ""},
    {"s14.1", 14, 200, 25, 60, "Forjamento de molde aberto", ""},
    {"s14.2", 14, 300, 25, 60, "Forjamento por derramamento, soldagem, moldagem a frio", ""},
    {"s14.3", 14, 300, 22, 60, "Usinagem grosseira e média Tolerâncias > 0,1 mm", ""},
    {"s14.4", 14, 500, 19, 60, "Usinagem de precisão: retificação Tolerâncias < 0,1 mm", ""},
    {"s14.5", 14, 750, 19, 60, "Gravação: inspeção", ""},
    {"s14.6", 14, 300, 25, 60, "Desenho de formas de fio e tubo", ""},
    {"s14.7", 14, 200, 25, 60, "Usinagem de placa ≥ 5 mm", ""},
    {"s14.8", 14, 300, 22, 60, "Trabalho em folha de metal < 5 mm", ""},
    {"s14.9", 14, 750, 19, 60, "Ferramentaria; fabricação de equipamento de corte", ""},
    {"s14.10", 14, 200, 25, 80, "Montagem: bruta", "Para montagem alta: ver também 4.6.2."},
    {"s14.11", 14, 300, 25, 80, "Montagem: média", "Para montagem alta: ver também 4.6.2."},
    {"s14.12", 14, 500, 22, 80, "Montagem: fina", "Para montagem alta: ver também 4.6.2."},
    {"s14.13", 14, 750, 19, 80, "Montagem: de precisão", "Para montagem alta: ver também 4.6.2."},
    {"s14.14", 14, 300, 25, 80, "Galvanoplastia", "Para montagem alta: ver também 4.6.2."},
    {"s14.15", 14, 750, 25, 80, "Pintura e preparação de superfícies", ""},
    {"s14.16", 14, 1000, 19, 80, "Confecção de ferramenta, modelo e dispositivo, mecânica de precisão, micromecânica", ""},
    {"s15.1", 15, 200, 25, 80, "Processamento da madeira ou fibra, moagem", "Para montagem alta: ver também 4.6.2."},
    {"s15.2", 15, 300, 25, 80, "Processo e fabricação de papel, máquinas de papel, papel canelado, fábrica de papelão", "Para montagem alta: ver também 4.6.2."},
    {"s15.3", 15, 500, 22, 60, "Trabalho de encardenação de livros padrões, por exemplo: dobra, triagem, colagem, corte, gravação em relevo, costura", ""},
    {"s16.1", 16, 50, 28, 20, "Instalação de abastecimento de combustíveis", "As cores para segurança devem ser reconhecíveis."},
    {"s16.2", 16, 100, 28, 40, "Casa da caldeira", ""},
    {"s16.3", 16, 200, 25, 80, "Salas de máquinas", "Para montagem alta: ver também 4.6.2."},
    {"s16.4", 16, 200, 25, 60, "Salas auxiliares, por exemplo: sala das bombas, sala dos capacitores, quadro de chave de distribuição etc.", ""},
    {"s16.5", 16, 500, 16, 80, "Salas de controle", "Os painéis de controle frequentemente estão na vertical. Dimerização pode ser necessária. Para trabalho com VDT, ver 4.10."},
    {"s17.1", 17, 500, 19, 80, "Corte, douração, gravação em relevo, gravura em bloco, trabalhos em pedras e placas, impressoras, matriciais", ""},
    {"s17.2", 17, 500, 19, 80, "Triagem de papel e impressão manual", ""},
    {"s17.3", 17, 1000, 19, 80, "Configuração de tipo, retoque, litografia", ""},
    {"s17.4", 17, 1500, 16, 90, "Inspeção de cor em impressão multicolorida", "Tcp 5 000 K."},
    {"s17.5", 17, 2000, 16, 80, "Gravação em aço e cobre", "Para iluminação direcional, ver 4.5.2."},
    {"s18.1", 18, 50, 28, 20, "Instalações de produção sem intervenção manual", "As cores para segurança devem ser reconhecíveis."},
    {"s18.2", 18, 150, 28, 40, "Instalações de produção com operação manual ocasional", ""},
    {"s18.3", 18, 200, 25, 80, "Instalações de produção com operação manual contínua", "Para montagem alta: ver também 4.6.2."},
    {"s18.4", 18, 50, 28, 20, "Depósito de chapas", "As cores para segurança devem ser reconhecíveis."},
    {"s18.5", 18, 200, 25, 20, "Fornos", "As cores para segurança devem ser reconhecíveis."},
    {"s18.6", 18, 300, 25, 40, "Usinagem, bobinadeira, linha de corte", ""},
    {"s18.7", 18, 300, 22, 80, "Plataformas de controle, painéis de controle", ""},
    {"s18.8", 18, 500, 22, 80, "Ensaio, medição e inspeção", ""},
    {"s18.9", 18, 50, 28, 20, "Túneis do tamanho de um homem sob o piso, porões etc.", "As cores para segurança devem ser reconhecíveis."},
    {"s19.1", 19, 200, 25, 60, "Locais de trabalho e zonas de banhos, abertura de fardos", ""},
    {"s19.2", 19, 300, 22, 80, "Cardar, lavar, passar, extrair, pentear, dimensionar, cortar a carda, pré-fiação, juta, fiação de linho", ""},
    {"s19.3", 19, 500, 22, 80, "Fiação, encordoar, bobinar, enrolar, urdir, tecer, trançar, trabalhar em malha", "Prevenir contra os efeitos estroboscópicos."},
    {"s19.4", 19, 750, 22, 90, "Costurar, trabalho fino em malha, prendendo os pontos", ""},
    {"s19.5", 19, 750, 22, 90, "Projeto manual, desenhos de padrões", "Tcp no mínimo 4 000 K."},
    {"s19.6", 19, 500, 22, 80, "Acabamento, tingimento", ""},
    {"s19.7", 19, 100, 28, 60, "Sala de secagem", ""},
    {"s19.8", 19, 500, 25, 80, "Estampagem automática", ""},
    {"s19.9", 19, 1000, 19, 80, "Extrair, selecionar, aparar", ""},
    {"s19.10", 19, 1000, 16, 90, "Inspeção de cor, controle do tecido", "Tcp no mínimo 4 000 K."},
    {"s19.11", 19, 1500, 19, 90, "Reparo invisível", "Tcp no mínimo 4 000 K."},
    {"s19.12", 19, 500, 22, 80, "Fabricação de chapéu", ""},
    {"s20.1", 20, 500, 22, 80, "Trabalhos no chassi e montagem", ""},
    {"s20.2", 20, 750, 22, 80, "Pintura, câmara de pulverização, câmara de polimento", ""},
    {"s20.3", 20, 1000, 16, 90, "Pintura: retoque, inspeção", "Tcp no mínimo 4 000 K."},
    {"s20.4", 20, 1000, 19, 80, "Fabricação de estofamento (manuseamento)", ""},
    {"s20.5", 20, 1000, 19, 80, "Inspeção final", ""},
    {"s21.1", 21, 50, 28, 40, "Processo automático, por exemplo: secagem na fabricação de madeira compensada", ""},
    {"s21.2", 21, 150, 28, 40, "Poços de vapor", ""},
    {"s21.3", 21, 300, 25, 60, "Sistema de serras", "Prevenir contra os efeitos estroboscópicos."},
    {"s21.4", 21, 300, 25, 80, "Trabalho de marceneiro em bancos de carpintaria, colagem, montagem", ""},
    {"s21.5", 21, 750, 22, 80, "Polimento, pintura, marcenaria de acabamento", ""},
    {"s21.6", 21, 500, 19, 80, "Trabalho em máquinas de marcenaria, por exemplo: tornear, acanelar, desempenar, rebaixar, chanfrar, cortar, serrar afundar", "Prevenir contra os efeitos estroboscópicos."},
    {"s21.7", 21, 750, 22, 90, "Seleção de madeira folheada, marchetaria, trabalhos de embutir", "Tcp no mínimo 4 000 K."},
    {"s21.8", 21, 1000, 19, 90, "Controle de qualidade", "Tcp no mínimo 4 000 K."},
    {"s22.1", 22, 300, 19, 80, "Arquivamento, cópia, circulação etc.", ""},
    {"s22.2", 22, 500, 19, 80, "Escrever, teclar, ler, processar dados", "Para trabalho com VDT, ver 4.10."},
    {"s22.3", 22, 750, 16, 80, "Desenho técnico", ""},
    {"s22.4", 22, 500, 19, 80, "Estações de projeto assistido por computador", "Para trabalho com VDT, ver 4.10."},
    {"s22.5", 22, 500, 19, 80, "Salas de reunião e conferência", "Recomenda-se que a iluminação seja controlável."},
    {"s22.6", 22, 300, 22, 80, "Recepção", ""},
    {"s22.7", 22, 200, 25, 80, "Arquivos", ""},
    {"s23.1", 23, 300, 22, 80, "Área de vendas pequena", ""},
    {"s23.2", 23, 500, 22, 80, "Área de vendas grande", ""},
    {"s23.3", 23, 500, 19, 80, "Área da caixa registradora", ""},
    {"s23.4", 23, 500, 19, 80, "Mesa do empacotador", ""},
    {"s24.1", 24, 300, 22, 80, "Recepção/caixa/portaria", ""},
    {"s24.2", 24, 500, 22, 80, "Cozinha", ""},
    {"s24.3", 24, 200, 22, 80, "Restaurante, sala de jantar, sala de eventos", "Recomenda-se que a iluminação seja projetada para criar um ambiente íntimo."},
    {"s24.4", 24, 200, 22, 80, "Restaurante self-service", ""},
    {"s24.5", 24, 300, 22, 80, "Bufê", ""},
    {"s24.6", 24, 500, 19, 80, "Salas de conferência", "Recomenda-se que a iluminação seja controlável."},
    {"s24.7", 24, 100, 25, 80, "Corredores", "Durante o período da noite são aceitáveis baixos níveis de iluminação."},
    {"s25.1", 25, 200, 22, 80, "Teatros e salas de concerto", ""},
    {"s25.2", 25, 300, 22, 80, "Salas com multiuso", ""},
    {"s25.3", 25, 300, 22, 80, "Salas de ensaio, camarins", "É necessário que a iluminação do espelho seja isenta de ofuscamento para a maquiagem."},
    {"s25.4", 25, 300, 19, 80, "Museus (em geral)", "Iluminação adequada para atender aos requisitos de exibição, proteção contra os efeitos de radiação."},
    {"s26.1", 26, 200, 19, 80, "Estantes", ""},
    {"s26.2", 26, 500, 19, 80, "Área de leitura", ""},
    {"s26.3", 26, 500, 19, 80, "Bibliotecárias", ""},
    {"s27.1", 27, 300, 25, 40, "Rampas de entrada e saída (durante o dia)", "As cores para segurança devem ser reconhecíveis."},
    {"s27.2", 27, 75, 25, 40, "Rampas de entrada e saída (durante a noite)", "As cores para segurança devem ser reconhecíveis."},
    {"s27.3", 27, 75, 25, 40, "Pistas de tráfego", "As cores para segurança devem ser reconhecíveis."},
    {"s27.4", 27, 75, 28, 40, "Estacionamento", "Uma iluminância vertical elevada aumenta o reconhecimento das faces das pessoas e, por esta razão, a sensação de segurança."},
    {"s27.5", 27, 300, 19, 80, "Guichê", "1) Evitar reflexões nas janelas. 2) Prevenir ofuscamento oriundo do lado externo."},
    {"s28.1", 28, 300, 19, 80, "Brinquedoteca", ""},
    {"s28.2", 28, 300, 19, 80, "Berçário", ""},
    {"s28.3", 28, 300, 19, 80, "Sala dos profissionais do berçário", ""},
    {"s28.4", 28, 300, 19, 80, "Salas de aula, salas de aulas particulares", "Recomenda-se que a iluminação seja controlável."},
    {"s28.5", 28, 500, 19, 80, "Salas de aulas noturnas, classes e educação de adultos", ""},
    {"s28.6", 28, 500, 19, 80, "Sala de leitura", "Recomenda-se que a iluminação seja controlável."},
    {"s28.7", 28, 500, 19, 80, "Quadro negro", "Prevenir reflexões especulares."},
    {"s28.8", 28, 500, 19, 80, "Mesa de demonstração", "Em salas de leitura 750 lux."},
    {"s28.9", 28, 500, 19, 80, "Salas de arte e artesanato", ""},
    {"s28.10", 28, 750, 19, 90, "Salas de arte em escolas de arte", "Tcp > 5 000 K."},
    {"s28.11", 28, 750, 16, 80, "Salas de desenho técnico", ""},
    {"s28.12", 28, 500, 19, 80, "Salas de aplicação e laboratórios", ""},
    {"s28.13", 28, 500, 19, 80, "Oficina de ensino", ""},
    {"s28.14", 28, 300, 19, 80, "Salas de ensino de música", ""},
    {"s28.15", 28, 500, 19, 80, "Salas de ensino de computador", "Para trabalho com VDT, ver 4.10."},
    {"s28.16", 28, 300, 19, 80, "Laboratório linguístico", ""},
    {"s28.17", 28, 500, 22, 80, "Salas de preparação e oficinas", ""},
    {"s28.18", 28, 200, 22, 80, "Salas comuns de estudantes e salas de reunião", ""},
    {"s28.19", 28, 300, 22, 80, "Salas dos professores", ""},
    {"s28.20", 28, 300, 22, 80, "Salas de esportes, ginásios e piscinas", "Para as instalações de acesso público, ver CIE 58 – 1983 e CIE 62 – 1984."},
    {"s29.1", 29, 200, 22, 80, "Salas de espera", "Iluminância ao nível do piso."},
    {"s29.2", 29, 200, 22, 80, "Corredores: durante o dia", "Iluminância ao nível do piso."},
    {"s29.3", 29, 50, 22, 80, "Corredores: durante a noite", "Iluminância ao nível do piso. A NBR imprime UGRL 2 (erro tipográfico; o valor da ISO é 22)."},
    {"s29.4", 29, 200, 22, 80, "Quartos com claridade", "Iluminância ao nível do piso."},
    {"s29.5", 29, 500, 19, 80, "Escritório dos funcionários", ""},
    {"s29.6", 29, 300, 19, 80, "Sala dos funcionários", ""},
    {"s29.7", 29, 100, 19, 80, "Enfermarias: iluminação em geral", "Iluminância ao nível do piso."},
    {"s29.8", 29, 300, 19, 80, "Enfermarias: iluminação de leitura", ""},
    {"s29.9", 29, 300, 19, 80, "Enfermarias: exame simples", ""},
    {"s29.10", 29, 1000, 19, 90, "Enfermarias: exames e tratamento", ""},
    {"s29.11", 29, 5, 19, 80, "Enfermarias: iluminação noturna, iluminação de observação", ""},
    {"s29.12", 29, 200, 22, 80, "Banheiros e toaletes para os pacientes", ""},
    {"s29.13", 29, 500, 19, 90, "Sala de exames em geral", ""},
    {"s29.14", 29, 1000, 0, 90, "Exames do ouvido e olhos", "Luminária para exame local."},
    {"s29.15", 29, 500, 16, 90, "Leitura e teste da visão colorida com gráficos de visão", ""},
    {"s29.16", 29, 50, 19, 80, "Escâner com intensificadores de imagem e sistemas de televisão", "Para trabalho com VDT, ver 4.10."},
    {"s29.17", 29, 500, 19, 80, "Salas de diálise", ""},
    {"s29.18", 29, 500, 19, 90, "Salas de dermatologia", ""},
    {"s29.19", 29, 300, 19, 80, "Salas de endoscopia", ""},
    {"s29.20", 29, 500, 19, 80, "Salas de gesso", ""},
    {"s29.21", 29, 300, 19, 80, "Banhos medicinais", ""},
    {"s29.22", 29, 300, 19, 80, "Massagem e radioterapia", ""},
    {"s29.23", 29, 500, 19, 90, "Salas pré-operatórias e salas de recuperação", ""},
    {"s29.24", 29, 1000, 19, 90, "Sala de cirurgia", "Cavidade cirúrgica: especial, Em = 10 000 lux a 100 000 lux (não listada)."},
    {"s29.25", 29, 100, 19, 90, "UTI: iluminação em geral", "No nível do piso."},
    {"s29.26", 29, 300, 19, 90, "UTI: exame simples", "No nível do leito."},
    {"s29.27", 29, 1000, 19, 90, "UTI: exame e tratamento", "No nível do leito."},
    {"s29.28", 29, 20, 19, 90, "UTI: observação noturna", ""},
    {"s29.29", 29, 500, 19, 90, "Dentistas: iluminação em geral", "Convém que a iluminação seja isenta de ofuscamento para o paciente."},
    {"s29.30", 29, 1000, 0, 90, "Dentistas: no paciente", "Luminária para exame local."},
    {"s29.31", 29, 5000, 0, 90, "Dentistas: cavidade cirúrgica", "Valores maiores que 5 000 lux podem ser necessários."},
    {"s29.32", 29, 5000, 0, 90, "Dentistas: branqueamento dos dentes", "Tcp ≥ 6 000 K."},
    {"s29.33", 29, 1000, 19, 90, "Inspeção de cor (laboratórios)", "Tcp ≥ 5 000 K."},
    {"s29.34", 29, 300, 22, 80, "Salas de esterilização", ""},
    {"s29.35", 29, 300, 22, 80, "Salas de desinfecção", ""},
    {"s29.36", 29, 500, 19, 90, "Salas de autópsia e necrotérios", ""},
    {"s29.37", 29, 5000, 0, 90, "Mesa de autópsia e mesa de dissecação", "Valores maiores que 5 000 lux podem ser necessários."},
    {"s30.1", 30, 200, 22, 80, "Saguões de embarque e desembarque, áreas de entrega da bagagem", "Para montagem alta: ver também 4.6.2."},
    {"s30.2", 30, 150, 22, 80, "Áreas de conexão, escadas rolantes, esteiras rolantes", ""},
    {"s30.3", 30, 500, 19, 80, "Balcão de informações, check-in", "Para trabalho com VDT, ver 4.10."},
    {"s30.4", 30, 500, 19, 80, "Alfândega e balcão de controle do passaporte", "É importante a iluminância vertical."},
    {"s30.5", 30, 200, 22, 80, "Salas de espera", ""},
    {"s30.6", 30, 200, 22, 80, "Local de armazenamento das bagagens", ""},
    {"s30.7", 30, 300, 19, 80, "Áreas da verificação de segurança", "Para trabalho com VDT, ver 4.10."},
    {"s30.8", 30, 500, 16, 80, "Torre de controle do tráfego aéreo", "1) Recomenda-se que a iluminação seja dimerizável. 2) Para trabalho com VDT, ver 4.10. 3) Recomenda-se que seja evitado o ofuscamento oriundo da luz natural."},
    {"s30.9", 30, 500, 16, 80, "Salas de tráfego aéreo", "1) Recomenda-se que a iluminação seja dimerizável. 2) Para trabalho com VDT, ver 4.10."},
    {"s30.10", 30, 500, 22, 80, "Hangares de reparos e testes", "Para montagem alta: ver também 4.6.2."},
    {"s30.11", 30, 500, 22, 88, "Áreas de testes dos motores", "Para montagem alta: ver também 4.6.2."},
    {"s30.12", 30, 500, 22, 80, "Áreas de medição em hangares", "Para montagem alta: ver também 4.6.2."},
    {"s30.13", 30, 50, 28, 40, "Plataformas e passagens subterrâneas para passageiros", ""},
    {"s30.14", 30, 200, 28, 40, "Saguão de compra de passagens e grandes espaços abertos para circulação de multidões", ""},
    {"s30.15", 30, 300, 19, 80, "Escritórios das bagagens e passagens e contadores", ""},
    {"s30.16", 30, 200, 22, 80, "Salas de espera (estações de passageiros)", ""},
    {"s31.1", 31, 100, 25, 80, "Corpo do local", ""},
    {"s31.2", 31, 300, 22, 80, "Cadeira, altar, púlpito", ""},
};
// clang-format on

std::vector<TaskRow> BuildTable() {
    std::vector<TaskRow> table;
    table.reserve(std::size(Activities));
    for (const Activity& activity : Activities) {
        TaskRow row;
        row.id = activity.id;
        row.section = activity.section;
        row.sectionName = Sections[activity.section - 1].name;
        row.activity = activity.activity;
        row.em = activity.em;
        row.ugrLimit = activity.ugrLimit;
        row.ra = activity.ra;
        row.note = activity.note;
        table.push_back(std::move(row));
    }
    return table;
}

std::vector<std::pair<std::int32_t, std::string>> BuildSections() {
    std::vector<std::pair<std::int32_t, std::string>> sections;
    sections.reserve(std::size(Sections));
    for (const Section& section : Sections) {
        sections.emplace_back(section.number, section.name);
    }
    return sections;
}

} // namespace

const std::vector<TaskRow>& TaskTable() {
    static const std::vector<TaskRow> Table = BuildTable();
    return Table;
}

const std::vector<std::pair<std::int32_t, std::string>>& TaskSections() {
    static const std::vector<std::pair<std::int32_t, std::string>> Table = BuildSections();
    return Table;
}

} // namespace Merivane::Simulation
